#include "usage/views/UsageView.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "usage/Theme.h"
#include "usage/UsageColors.h"
#include "usage/views/QtColor.h"

namespace brimly {

namespace {

QRectF toQRect(const Rect& rect) {
  return QRectF(rect.x, rect.y, rect.width, rect.height);
}

void fillCapsule(QPainter& painter, const Rect& frame, const QBrush& brush) {
  QPainterPath capsule;
  const double radius = std::min(frame.width, frame.height) / 2.0;
  capsule.addRoundedRect(toQRect(frame), radius, radius);
  painter.fillPath(capsule, brush);
}

// Draws `text` in the font set on the painter, its line box at `frame`.
void drawLine(QPainter& painter, const Rect& frame, const QString& text, const QColor& colour) {
  const QFontMetricsF metrics(painter.font(), painter.device());
  painter.setPen(colour);
  painter.drawText(QPointF(frame.x, frame.y + metrics.ascent()), text);
}

Size lineSize(const QFontMetricsF& metrics, const QString& text) {
  return {metrics.horizontalAdvance(text), metrics.height()};
}

}  // namespace

UsageView::UsageView(int columns, double cellWidth, UsageTypography typography, QWidget* parent)
    : QWidget(parent),
      columns_(columns),
      cellWidth_(cellWidth),
      typography_(std::move(typography)) {
  setAttribute(Qt::WA_TranslucentBackground);
  setAttribute(Qt::WA_NoSystemBackground);
  setAutoFillBackground(false);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  const QFontMetricsF label(typography_.labelFont(*this), this);
  const QFontMetricsF value(typography_.valueFont(*this), this);
  headerHeight_ = std::ceil(std::max(label.height(), value.height()));
  connect(&frameTimer_, &FrameTimer::frame, this, &UsageView::advance);
  rebuild();
  resize(sizeHint());
}

void UsageView::setSample(const MetricSample& sample) {
  sample_ = sample;
  rebuild();
}

void UsageView::setMetricOrder(const std::vector<MetricKind>& order) {
  order_ = order;
  rebuild();
}

void UsageView::setUseFahrenheit(bool useFahrenheit) {
  useFahrenheit_ = useFahrenheit;
  rebuild();
}

double UsageView::shownBarValue(MetricKind kind) const {
  const auto found = motion_.find(kind.value());
  return found == motion_.end() ? 0.0 : found->second.bar.value(frameTimer_.now());
}

QSize UsageView::sizeHint() const {
  return QSize(static_cast<int>(std::ceil(grid_.size.width)),
               static_cast<int>(std::ceil(grid_.size.height)));
}

void UsageView::rebuild() {
  const QSize oldHint = sizeHint();
  const double now = frameTimer_.now();
  const bool animate = isVisible();

  contents_.clear();
  std::map<MetricKind::Value, CellMotion> kept;
  for (const MetricKind kind : order_) {
    MetricCellContent content = MetricCellContent::of(kind, sample_, useFahrenheit_);
    const auto found = motion_.find(kind.value());
    CellMotion motion = found == motion_.end() ? CellMotion{} : found->second;
    if (found == motion_.end() || !animate) {
      // A cell that just appeared, or one nobody is watching, shows its value at once.
      motion.bar.jumpTo(content.barValue);
      motion.textFade.jumpTo(1.0);
      motion.previousPrimary.clear();
    } else {
      motion.bar.animateTo(content.barValue, now);
      if (content.primary != motion.currentPrimary) {
        motion.previousPrimary = motion.currentPrimary;
        motion.textFade.jumpTo(0.0);
        motion.textFade.animateTo(1.0, now);
      }
    }
    motion.currentPrimary = content.primary;
    kept.insert_or_assign(kind.value(), std::move(motion));
    contents_.push_back(std::move(content));
  }
  motion_ = std::move(kept);
  grid_ = MetricGridLayout::layout(order_, columns_, cellWidth_,
                                   MetricGridLayout::cellHeight(headerHeight_));

  if (sizeHint() != oldHint) {
    resize(sizeHint());
    updateGeometry();
  }
  if (anyRunning(now)) frameTimer_.run();
  update();
}

bool UsageView::anyRunning(double now) const {
  return std::any_of(motion_.begin(), motion_.end(), [now](const auto& entry) {
    return entry.second.bar.isRunning(now) || entry.second.textFade.isRunning(now);
  });
}

void UsageView::advance(double now) {
  update();
  if (!anyRunning(now)) frameTimer_.stop();
}

void UsageView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  const double now = frameTimer_.now();
  for (std::size_t i = 0; i < grid_.cells.size() && i < contents_.size(); ++i) {
    paintCell(painter, grid_.cells[i], contents_[i], now);
  }
}

void UsageView::paintCell(QPainter& painter, const CellPlacement& placement,
                          const MetricCellContent& content, double now) {
  const CellGeometry cell = MetricGridLayout::cellLayout(cellWidth_, headerHeight_);
  const CellMotion& motion = motion_.at(placement.kind.value());
  const QColor primaryColour = toQColor(Theme::primaryForeground);
  const QColor secondaryColour = toQColor(Theme::secondaryForeground);

  painter.save();
  painter.translate(placement.frame.x, placement.frame.y);

  // Header: the label at the leading edge, the value at the trailing edge.
  painter.setFont(typography_.labelFont(*painter.device()));
  const QFontMetricsF labelMetrics(painter.font(), painter.device());
  const QString label = QString::fromStdString(content.label);
  drawLine(painter, cell.labelFrame(lineSize(labelMetrics, label)), label, secondaryColour);

  painter.setFont(typography_.valueFont(*painter.device()));
  const QFontMetricsF valueMetrics(painter.font(), painter.device());
  const double fade = motion.textFade.value(now);
  const auto drawPrimary = [&](const std::string& text, double opacity) {
    if (opacity <= 0.0) return;
    const QString value = QString::fromStdString(text);
    QColor colour = primaryColour;
    colour.setAlphaF(static_cast<float>(colour.alphaF() * opacity));
    drawLine(painter, cell.primaryFrame(lineSize(valueMetrics, value)), value, colour);
  };
  if (fade < 1.0) drawPrimary(motion.previousPrimary, 1.0 - fade);
  drawPrimary(content.primary, fade);

  // Bar: a faint full-width track, and the coloured fill over it.
  fillCapsule(painter, cell.bar, toQColor(Theme::barTrack));
  const Rect fill = cell.barFillFrame(motion.bar.value(now));
  const ColorPair pair = colors(content.barValue, content.palette);
  QLinearGradient gradient(QPointF(fill.x, 0.0), QPointF(fill.x + fill.width, 0.0));
  gradient.setColorAt(0.0, toQColor(pair.start));
  gradient.setColorAt(1.0, toQColor(pair.end));
  fillCapsule(painter, fill, gradient);

  // Detail line.
  painter.setFont(typography_.detailFont(*painter.device()));
  const QFontMetricsF detailMetrics(painter.font(), painter.device());
  const QString detail = detailMetrics.elidedText(QString::fromStdString(content.secondary),
                                                  Qt::ElideRight, cell.detail.width);
  drawLine(painter, cell.detailTextFrame(lineSize(detailMetrics, detail)), detail, secondaryColour);

  painter.restore();
}

}  // namespace brimly
