#include "usage/views/UsageView.h"

#include <QLinearGradient>
#include <QPaintEvent>
#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "panel/views/QtGeometry.h"
#include "usage/Theme.h"
#include "usage/UsageColors.h"
#include "usage/views/QtColor.h"

namespace brimly {

namespace {

// Two bar values are the same value; not a number is the same as itself.
bool sameValue(double a, double b) {
  return a == b || (std::isnan(a) && std::isnan(b));
}

// The whole pixels `rect` (in a cell) touches inside the grid, with a pixel to spare on every side
// for antialiased edges.
QRect repaintArea(const Rect& rect, const CellPlacement& placement) {
  return toQRectF(rect)
      .translated(placement.frame.x, placement.frame.y)
      .toAlignedRect()
      .adjusted(-1, -1, 1, 1);
}

// The theme's colours as Qt draws them, converted once.
const QColor& secondaryText() {
  static const QColor colour = toQColor(Theme::secondaryForeground);
  return colour;
}

const QColor& trendColour() {
  static const QColor colour = toQColor(TrendLine::colour);
  return colour;
}

// Draws `line` with its line box at `frame`, in a font of `ascent`.
void drawLine(QPainter& painter, const Rect& frame, double ascent, const ShapedLines::Line& line,
              const QColor& colour) {
  painter.setPen(colour);
  ShapedLines::draw(painter, QPointF(frame.x, frame.y + ascent), line);
}

}  // namespace

UsageView::UsageView(int columns, double cellWidth, UsageTypography typography, QWidget* parent)
    : QWidget(parent),
      columns_(columns),
      cellWidth_(cellWidth),
      fonts_(typography),
      cell_(MetricGridLayout::cellLayout(cellWidth_, UsageTypography::headerHeight)),
      track_({cell_.bar.width, cell_.bar.height}),
      values_(std::move(typography)) {
  setAttribute(Qt::WA_TranslucentBackground);
  setAttribute(Qt::WA_NoSystemBackground);
  setAutoFillBackground(false);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(&frameTimer_, &FrameTimer::frame, this, &UsageView::advance);
  rebuild();
  resize(sizeHint());
}

void UsageView::setSample(const MetricSample& sample) {
  sample_ = sample;
  rebuild();
}

void UsageView::setSample(const MetricSample& sample, const SampleHistory& history) {
  if (history_) {
    *history_ = history;
  } else {
    history_ = std::make_unique<SampleHistory>(history);
  }
  setSample(sample);
}

void UsageView::setShowTrend(bool show) {
  if (show == showTrend_) return;
  // The strips the lines are drawn in are painted afresh, with the lines or without them.
  for (const CellPlacement& placement : grid_.cells) {
    unpainted_ += repaintArea(TrendLine::band(cell_), placement);
  }
  showTrend_ = show;
  trend_.clear();
  if (showTrend_) takeTrend();
  paintMarkedParts();
}

void UsageView::setMetricOrder(const std::vector<MetricKind>& order) {
  order_ = order;
  rebuild();
}

void UsageView::setUseFahrenheit(bool useFahrenheit) {
  useFahrenheit_ = useFahrenheit;
  rebuild();
}

void UsageView::setScale(double scale) {
  if (!(scale > 0.0) || !std::isfinite(scale) || scale == scale_) return;
  scale_ = scale;
  const UsageTypography typography = fonts_.typography().scaledTo(scale);
  fonts_ = UsageFonts(typography);
  values_ = ValueTextRenderer(typography);
  cell_ = MetricGridLayout::cellLayout(cellWidth_ * scale_, headerHeight(), scale_);
  track_ = BarTrack({cell_.bar.width, cell_.bar.height});
  rebuild();
  update();  // the same cells, every one of them drawn larger
}

double UsageView::shownBarValue(MetricKind kind) const {
  const auto found = motion_.find(kind.value());
  return found == motion_.end() ? 0.0 : barValueShown(found->second, frameTimer_.now());
}

std::vector<TrendLine::Run> UsageView::trendLine(MetricKind kind) const {
  const auto found = trend_.find(kind.value());
  return found == trend_.end() ? std::vector<TrendLine::Run>{} : found->second;
}

QSize UsageView::sizeHint() const {
  return QSize(static_cast<int>(std::ceil(grid_.size.width)),
               static_cast<int>(std::ceil(grid_.size.height)));
}

void UsageView::rebuild() {
  const QSize oldHint = sizeHint();
  const double now = frameTimer_.now();
  pixelRatio_ = devicePixelRatioF();
  const bool animate = isVisible();
  // A motion starts one frame in, so that its first step is painted with the sample that brings
  // it rather than a frame later: a sample then wakes the grid once less.
  const double firstStep = -frameTimer_.intervalMs() / 1000.0;
  const std::vector<MetricCellContent> oldContents = std::move(contents_);
  const std::vector<CellPlacement> oldCells = grid_.cells;

  contents_.clear();
  styles_.clear();
  std::map<MetricKind::Value, CellMotion> kept;
  for (const MetricKind kind : order_) {
    MetricCellContent content = MetricCellContent::of(kind, sample_, useFahrenheit_);
    const auto found = motion_.find(kind.value());
    CellMotion motion = found == motion_.end() ? CellMotion{} : found->second;
    if (found == motion_.end() || !animate) {
      // A cell that just appeared, or one nobody is watching, shows its value at once.
      motion.bar.jumpTo(content.barValue);
      motion.text.jumpTo(1.0);
      motion.previousPrimary.clear();
      motion.shown = lookAt(motion, now);
    } else {
      // `shown` stays what was painted last: the frames to come are measured against it.
      const bool newValue = !sameValue(content.barValue, motion.bar.target());
      // A change too small to move the bar by a step is taken at once, without frames.
      if (barStep(motion.bar.value(now)) == barStep(content.barValue)) {
        motion.bar.jumpTo(content.barValue);
      } else {
        motion.bar.animateTo(content.barValue, now, firstStep);
      }
      if (content.primary != motion.currentPrimary) {
        // The same value in another unit is put in place at once.
        motion.previousPrimary = motion.currentPrimary;
        motion.text.jumpTo(newValue ? 0.0 : 1.0);
        if (newValue) motion.text.animateTo(1.0, now, firstStep);
      }
    }
    motion.currentPrimary = content.primary;
    kept.insert_or_assign(kind.value(), std::move(motion));
    // The colours follow the new value at once; only the length glides.
    const ColorPair bar = colors(content.barValue, content.palette);
    styles_.push_back(
        {QString::fromStdString(content.label), toQColor(bar.start), toQColor(bar.end)});
    contents_.push_back(std::move(content));
  }
  motion_ = std::move(kept);
  grid_ = MetricGridLayout::layout(order_, columns_, cellWidth_ * scale_,
                                   MetricGridLayout::cellHeight(headerHeight(), scale_), scale_);

  if (sizeHint() != oldHint) {
    resize(sizeHint());
    updateGeometry();
  }
  if (grid_.cells != oldCells) {
    update();
  } else {
    // Only the parts that show something new are repainted; most samples change one or two.
    for (std::size_t i = 0; i < contents_.size(); ++i) {
      markChangedParts(grid_.cells[i], oldContents[i], contents_[i], now);
    }
  }
  if (showTrend_) takeTrend();
  advance(now);  // the first step of what moves, painted in the same turn
}

void UsageView::markChangedParts(const CellPlacement& placement, const MetricCellContent& before,
                                 const MetricCellContent& after, double now) {
  // What moves (a bar's length, a value text that changes with its value) is left to `advance`.
  const CellMotion& motion = motion_.at(placement.kind.value());
  const bool newText = before.primary != after.primary && !motion.text.isRunning(now);
  if (before.label != after.label || newText) unpainted_ += headerArea(placement);
  if (colors(before.barValue, before.palette) != colors(after.barValue, after.palette)) {
    unpainted_ += barArea(placement);
  }
  if (before.secondary != after.secondary) unpainted_ += detailArea(placement);
}

void UsageView::paintMarkedParts() {
  if (unpainted_.isEmpty()) return;
  // An opaque grid needs nothing beneath it drawn again, so its parts are painted at once, by the
  // frame or sample that changed them, rather than in a later turn of the event loop, which would
  // wake the program once more for every frame. Drawn through a layer (while the card fades or
  // cuts it), the grid waits for the window's next paint, so that card and grid are drawn
  // together.
  if (testAttribute(Qt::WA_OpaquePaintEvent)) {
    repaint(unpainted_);
  } else {
    update(unpainted_);
  }
  unpainted_ = QRegion();
}

bool UsageView::anyRunning(double now) const {
  return std::any_of(motion_.begin(), motion_.end(), [now](const auto& entry) {
    return entry.second.bar.isRunning(now) || entry.second.text.isRunning(now);
  });
}

double UsageView::barValueShown(const CellMotion& motion, double now) const {
  const double value = motion.bar.value(now);
  return barStep(value) == barStep(motion.bar.target()) ? motion.bar.target() : value;
}

long UsageView::barStep(double value) const {
  const double fill = cell_.barFillFrame(value).width;
  return std::lround(fill * pixelRatio_ * CellLook::barStepsPerPixel);
}

UsageView::CellLook UsageView::lookAt(const CellMotion& motion, double now) const {
  return {barStep(motion.bar.value(now)), textStep(motion, now)};
}

long UsageView::textStep(const CellMotion& motion, double now) {
  return std::lround(motion.text.value(now) * ValueTransition::steps);
}

QRect UsageView::detailArea(const CellPlacement& placement) const {
  return repaintArea(cell_.detail, placement);
}

QRect UsageView::barArea(const CellPlacement& placement) const {
  return repaintArea(showTrend_ ? TrendLine::band(cell_) : cell_.bar, placement);
}

QRect UsageView::headerArea(const CellPlacement& placement) const {
  return repaintArea(cell_.header, placement);
}

QRect UsageView::valueArea(const CellPlacement& placement, const CellMotion& motion,
                           const MetricCellContent& content) {
  // Wide enough for either text, drawn as on screen, with room for a glyph reaching past its
  // text's start; the label keeps further away than that.
  const double width = values_.width(motion.previousPrimary, content.primary, *this) +
                       MetricGridLayout::headerSpacing * scale_ / 2.0;
  const Rect& header = cell_.header;
  return repaintArea({header.maxX() - width, header.y, width, header.height}, placement);
}

void UsageView::advance(double now) {
  for (std::size_t i = 0; i < grid_.cells.size() && i < contents_.size(); ++i) {
    const CellPlacement& placement = grid_.cells[i];
    CellMotion& motion = motion_.at(placement.kind.value());
    const CellLook look = lookAt(motion, now);
    if (look.barFill != motion.shown.barFill) unpainted_ += barArea(placement);
    // A step of the value's text leaves the label as it is.
    if (look.textStep != motion.shown.textStep) {
      unpainted_ += valueArea(placement, motion, contents_[i]);
    }
    motion.shown = look;
  }
  paintMarkedParts();
  scheduleNextFrame(now);
}

std::optional<int> UsageView::framesUntilNextLook(double now) const {
  const double interval = frameTimer_.intervalMs() / 1000.0;
  for (int frames = 1;; ++frames) {
    const double then = now + frames * interval;
    for (const auto& [kind, motion] : motion_) {
      if (lookAt(motion, then) != motion.shown) return frames;
    }
    if (!anyRunning(then)) return std::nullopt;
  }
}

void UsageView::scheduleNextFrame(double now) {
  if (const std::optional<int> frames = framesUntilNextLook(now)) {
    frameTimer_.resumeAfter(*frames);
  } else {
    frameTimer_.stop();
  }
}

void UsageView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  const double now = frameTimer_.now();
  // A frame of a moving bar repaints a strip of one cell: everything else is left as it is, since
  // shaping and drawing the texts of six cells would cost far more than the strip itself.
  const QRegion& region = event->region();
  // Told to paint opaquely, it lays down its window colour first: nothing beneath is drawn.
  if (testAttribute(Qt::WA_OpaquePaintEvent)) {
    for (const QRect& rect : region)
      painter.fillRect(rect, palette().window());
  }
  for (std::size_t i = 0; i < grid_.cells.size() && i < contents_.size(); ++i) {
    const CellPlacement& placement = grid_.cells[i];
    const bool header = region.intersects(headerArea(placement));
    const bool bar = region.intersects(barArea(placement));
    const bool detail = region.intersects(detailArea(placement));
    if (!header && !bar && !detail) continue;
    const CellMotion& motion = motion_.at(placement.kind.value());
    painter.save();
    painter.translate(placement.frame.x, placement.frame.y);
    if (header) paintHeader(painter, region, placement, i, now);
    if (bar) {
      if (showTrend_) paintTrend(painter, placement.kind);
      paintBar(painter, styles_[i], motion, now);
    }
    if (detail) paintDetail(painter, contents_[i]);
    painter.restore();
  }
}

// The label at the leading edge, unless only the value is repainted, and the value at the
// trailing edge.
void UsageView::paintHeader(QPainter& painter, const QRegion& region,
                            const CellPlacement& placement, std::size_t cell, double now) {
  const QPaintDevice& device = *painter.device();
  const ShapedLines::Line& label =
      labels_.line(styles_[cell].label, fonts_.on(device).label, device);
  const Rect labelFrame = cell_.labelFrame({label.advance, labels_.height()});
  if (region.intersects(repaintArea(labelFrame, placement))) {
    drawLine(painter, labelFrame, labels_.ascent(), label, secondaryText());
  }
  const CellMotion& motion = motion_.at(placement.kind.value());
  values_.paint(painter, motion.previousPrimary, contents_[cell].primary, textStep(motion, now),
                cell_);
}

// A faint full-width track, and the coloured fill over it.
void UsageView::paintBar(QPainter& painter, const CellStyle& style, const CellMotion& motion,
                         double now) {
  track_.paint(painter, {cell_.bar.x, cell_.bar.y});
  painter.setPen(Qt::NoPen);
  const Rect fill = cell_.barFillFrame(barValueShown(motion, now));
  QLinearGradient gradient(QPointF(fill.x, 0.0), QPointF(fill.x + fill.width, 0.0));
  gradient.setColorAt(0.0, style.barStart);
  gradient.setColorAt(1.0, style.barEnd);
  painter.setBrush(gradient);
  fillCapsule(painter, fill);
}

void UsageView::takeTrend() {
  if (!history_) return;
  const Rect band = TrendLine::band(cell_);
  std::map<MetricKind::Value, std::vector<TrendLine::Run>> lines;
  for (const CellPlacement& placement : grid_.cells) {
    std::vector<TrendLine::Run> runs = TrendLine::runs(placement.kind, *history_, band);
    const auto drawn = trend_.find(placement.kind.value());
    if (drawn == trend_.end() || drawn->second != runs) unpainted_ += barArea(placement);
    lines.emplace(placement.kind.value(), std::move(runs));
  }
  trend_ = std::move(lines);
}

// The line behind the track, in the cell's coordinates.
void UsageView::paintTrend(QPainter& painter, MetricKind kind) {
  const auto found = trend_.find(kind.value());
  if (found == trend_.end()) return;
  // A larger panel draws its line a quarter thicker, as it does every other length.
  painter.setPen(QPen(trendColour(), TrendLine::lineWidth * scale_, Qt::SolidLine, Qt::RoundCap,
                      Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  for (const TrendLine::Run& run : found->second) {
    QPolygonF line;
    line.reserve(static_cast<qsizetype>(run.size()));
    for (const Point& point : run)
      line << QPointF(point.x, point.y);
    if (line.size() == 1) {
      painter.drawPoint(line.front());
    } else {
      painter.drawPolyline(line);
    }
  }
}

void UsageView::paintDetail(QPainter& painter, const MetricCellContent& content) {
  const QPaintDevice& device = *painter.device();
  const ShapedLines::Line& detail =
      details_.line(QString::fromStdString(content.secondary), fonts_.on(device).detail, device,
                    cell_.detail.width);
  drawLine(painter, cell_.detailTextFrame({detail.advance, details_.height()}), details_.ascent(),
           detail, secondaryText());
}

}  // namespace brimly
