#include "settingswindow/views/MetricPreview.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "panel/views/QtGeometry.h"
#include "sampling/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "settingswindow/MetricListRules.h"
#include "settingswindow/SettingsTheme.h"
#include "settingswindow/views/TextMeasure.h"
#include "ui/Accent.h"
#include "ui/TextStyle.h"
#include "ui/WindowFonts.h"
#include "usage/UsageColors.h"
#include "usage/views/CellReadout.h"
#include "usage/views/QtColor.h"

namespace brimly {

namespace {

QFont titleFont(const QPaintDevice& device) {
  return windowFont(device, MetricPreviewLayout::titleSize, QFont::DemiBold,
                    MetricPreviewLayout::titleTracking);
}

QString titleOf(MetricKind kind) {
  return QString::fromUtf8(kind.displayName().data(),
                           static_cast<qsizetype>(kind.displayName().size()));
}

void fillCapsule(QPainter& painter, const Rect& frame, const QColor& colour) {
  QPainterPath capsule;
  const double radius = std::min(frame.width, frame.height) / 2.0;
  capsule.addRoundedRect(toQRectF(frame), radius, radius);
  painter.fillPath(capsule, colour);
}

}  // namespace

MetricPreview::MetricPreview(AppSettings& settings, const SystemMonitor& monitor, double cellWidth,
                             QWidget* parent)
    : QWidget(parent), settings_(settings), monitor_(monitor), cellWidth_(cellWidth) {
  setAttribute(Qt::WA_NoSystemBackground);
  setAutoFillBackground(false);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setAccessibleName(QStringLiteral("Live preview"));
  const QFont font = titleFont(*this);
  for (const MetricKind kind : MetricKind::allCases()) {
    titleSizes_[kind] = measuredText(font, titleOf(kind), *this);
  }
  connect(&frameTimer_, &FrameTimer::frame, this, &MetricPreview::advance);
  connect(&settings_, &AppSettings::metricOrderChanged, this, &MetricPreview::takeOrder);
  connect(&monitor_, &SystemMonitor::sampleApplied, this, &MetricPreview::takeSample);
  takeOrder();
}

double MetricPreview::shownFill(MetricKind kind) const {
  const auto found = bars_.find(kind.value());
  return found == bars_.end() ? 0.0 : found->second.value(frameTimer_.now());
}

double MetricPreview::targetFill(MetricKind kind) const {
  const auto found = bars_.find(kind.value());
  return found == bars_.end() ? 0.0 : found->second.target();
}

QSize MetricPreview::sizeHint() const {
  return QSize(width(), static_cast<int>(std::ceil(geometry_.size.height)));
}

QSize MetricPreview::minimumSizeHint() const {
  return QSize(0, sizeHint().height());
}

void MetricPreview::takeOrder() {
  // A metric that has just appeared shows its reading at once; those that stay keep moving.
  std::map<MetricKind::Value, EasedAnimation> kept;
  for (const MetricKind kind : settings_.metricOrder()) {
    const auto found = bars_.find(kind.value());
    if (found != bars_.end()) {
      kept.insert_or_assign(kind.value(), found->second);
    } else {
      EasedAnimation bar(barAnimationSeconds, TimingCurve::easeOut());
      bar.jumpTo(MetricListRules::previewFill(kind, monitor_.current()));
      kept.insert_or_assign(kind.value(), bar);
    }
  }
  bars_ = std::move(kept);
  const int oldHeight = sizeHint().height();
  relayout();
  if (sizeHint().height() != oldHeight) updateGeometry();
}

void MetricPreview::takeSample() {
  const double now = frameTimer_.now();
  const bool animate = isVisible();
  bool moving = false;
  for (auto& [kind, bar] : bars_) {
    const double fill = MetricListRules::previewFill(kind, monitor_.current());
    if (animate) {
      bar.animateTo(fill, now);
      moving = moving || bar.isRunning(now);
    } else {
      bar.jumpTo(fill);
    }
  }
  if (moving) frameTimer_.run();
  update();
}

void MetricPreview::advance(double now) {
  update();
  const bool moving = std::any_of(bars_.begin(), bars_.end(),
                                  [now](const auto& entry) { return entry.second.isRunning(now); });
  if (!moving) frameTimer_.stop();
}

void MetricPreview::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  relayout();
}

void MetricPreview::relayout() {
  geometry_ =
      MetricPreviewLayout::layout(settings_.metricOrder(), width(), cellWidth_, titleSizes_);
  update();
}

std::vector<DrawnText> MetricPreview::drawnTexts() const {
  std::vector<DrawnText> texts;
  for (const PreviewCell& cell : geometry_.cells) {
    texts.push_back(
        cellReadout(MetricCellContent::of(cell.kind, monitor_.current(), settings_.useFahrenheit()),
                    toQRectF(cell.frame)));
  }
  return texts;
}

void MetricPreview::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double radius = MetricPreviewLayout::cornerRadius;
  QPainterPath well;
  well.addRoundedRect(QRectF(0.0, 0.0, geometry_.size.width, geometry_.size.height), radius,
                      radius);
  painter.fillPath(well, toQColor(SettingsTheme::drawer));

  const double now = frameTimer_.now();
  painter.setFont(titleFont(*this));
  painter.setPen(textColor(TextStyle::secondary));
  const QColor track = toQColor(MetricPreviewLayout::trackColor);
  const QColor accent = toQColor(Accent::current());
  const QColor dimmed = toQColor(dimmedBar);
  for (const PreviewCell& cell : geometry_.cells) {
    painter.drawText(toQRectF(cell.title), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     titleOf(cell.kind));
    fillCapsule(painter, cell.track, track);
    const auto bar = bars_.find(cell.kind.value());
    const double fill = bar == bars_.end() ? 0.0 : bar->second.value(now);
    const bool reading = MetricListRules::hasPreviewReading(cell.kind, monitor_.current());
    fillCapsule(painter, MetricPreviewLayout::fillFrame(cell, fill), reading ? accent : dimmed);
  }
}

}  // namespace brimly
