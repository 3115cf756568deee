#pragma once

#include <QColor>
#include <QRegion>
#include <QString>
#include <QWidget>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "accessibility/AccessibleParts.h"
#include "core/MetricKind.h"
#include "panel/EasedAnimation.h"
#include "panel/views/FrameTimer.h"
#include "sampling/MetricSample.h"
#include "sampling/SampleHistory.h"
#include "usage/MetricCellContent.h"
#include "usage/MetricGridLayout.h"
#include "usage/TrendLine.h"
#include "usage/ValueTransition.h"
#include "usage/views/BarTrack.h"
#include "usage/views/ShapedLines.h"
#include "usage/views/UsageFonts.h"
#include "usage/views/UsageTypography.h"
#include "usage/views/ValueTextRenderer.h"

namespace brimly {

// The grid of metric cells: one per shown metric, in the user's order, each with its label, large
// value, coloured bar and detail line. It draws only what it is given (a sample, the order of the
// shown metrics and the temperature unit), so it serves the notch panel and a preview alike; a
// binding feeds it from the live monitor and the settings.
//
// Bar lengths glide to new values over half a second and a new value text replaces the old one
// character by character over a quarter second (see `ValueTransition`), but only while the grid is
// on screen: a hidden grid takes new values at once and costs no frames. The text moves only when
// the value behind it changes: a new unit for the same temperature is put in place at once. A frame
// repaints only the strips that moved, frames that would show nothing new are skipped, and the
// first step of a motion is painted with the sample that starts it, so a sample that changes one
// figure costs a handful of small repaints.
//
// With the trend shown, a thin, faint line behind each bar traces that bar's values over the last
// minute (see `TrendLine`), drawn from the history given with the samples; the strip around the bar
// is then repainted with the bar. With the trend off (the default) nothing of it is drawn or
// worked out, and the grid paints exactly the strips it paints without it.
//
// Assistive technologies read each cell as a label of its name and value ("CPU 31%"), with the
// detail line as its description; the labels are formed only when they ask.
class UsageView : public QWidget, public AccessibleParts {
  Q_OBJECT

 public:
  // The notch panel's grid: three cells to a row, each 172 points wide.
  static constexpr int panelColumns = 3;
  static constexpr double panelCellWidth = 172.0;

  static constexpr double barAnimationSeconds = 0.5;
  static constexpr double textTransitionSeconds = 0.25;
  // Glides and text steps run at about 17 frames a second, and a bar's frame is drawn only once
  // its end has moved by two device pixels (see `CellLook`): a 3-point bar easing out over half a
  // second reads as the same slide at 60 frames a second, and a panel pinned open repeats its
  // glides every second all day. Each frame wakes the program, paints a strip and sends it to the
  // display, so the frames are what it costs.
  static constexpr int frameIntervalMs = 60;

  UsageView(int columns, double cellWidth, UsageTypography typography = UsageTypography::system(),
            QWidget* parent = nullptr);

  void setSample(const MetricSample& sample);
  // The sample with the samples behind it, for the trend: both are painted together.
  void setSample(const MetricSample& sample, const SampleHistory& history);
  void setShowTrend(bool show);
  bool showsTrend() const { return showTrend_; }
  // The trend line drawn behind the bar of `kind`; none while the trend is off.
  std::vector<TrendLine::Run> trendLine(MetricKind kind) const;
  void setMetricOrder(const std::vector<MetricKind>& order);
  void setUseFahrenheit(bool useFahrenheit);
  // Draws every length of the grid and its text `scale` times its usual size (see `scaleOf`). A
  // scale that is not a positive number is ignored.
  void setScale(double scale);
  double scale() const { return scale_; }

  const std::vector<MetricCellContent>& cells() const { return contents_; }
  const GridGeometry& geometry() const { return grid_; }
  double headerHeight() const { return UsageTypography::headerHeight * scale_; }
  // The bar value a cell shows right now (mid-animation it lies between the old and the new).
  double shownBarValue(MetricKind kind) const;

  FrameTimer& frameTimer() { return frameTimer_; }
  bool isAnimating() const { return frameTimer_.isRunning(); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

  QAccessible::Role accessibleRole() const override { return QAccessible::Client; }
  std::vector<DrawnText> drawnTexts() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // What one frame of a cell looks like, in steps a viewer could tell apart: the bar's fill in
  // steps of two device pixels and the value text's transition in its steps. A frame that would
  // draw the same steps is not painted. A bar within its last step is drawn at its target length,
  // so that its last frame shows its exact end.
  struct CellLook {
    static constexpr double barStepsPerPixel = 0.5;

    long barFill = -1;
    long textStep = -1;
    bool operator==(const CellLook&) const = default;
  };

  // What painting a cell takes from its content, made once per sample rather than on every frame.
  struct CellStyle {
    QString label;
    QColor barStart;
    QColor barEnd;
  };

  struct CellMotion {
    EasedAnimation bar{barAnimationSeconds};
    // From 0 (the previous text) to 1 (the current one), over the transition's steps.
    EasedAnimation text{textTransitionSeconds, TimingCurve::easeOut(), 1.0};
    std::string currentPrimary;
    std::string previousPrimary;  // giving way to the current one while `text` runs
    CellLook shown;               // the look last asked to be painted
  };

  void rebuild();
  void advance(double now);
  bool anyRunning(double now) const;
  CellLook lookAt(const CellMotion& motion, double now) const;
  // How far the value text's transition has come, in the steps of `ValueTransition`.
  static long textStep(const CellMotion& motion, double now);
  // How many frames from `now` until one would paint something new; none when everything
  // arrives without another change a viewer could see.
  std::optional<int> framesUntilNextLook(double now) const;
  void scheduleNextFrame(double now);
  // The bar value drawn now: the gliding value, or the target once within the target's step.
  double barValueShown(const CellMotion& motion, double now) const;
  // The bar's fill for `value` in the steps of `CellLook`.
  long barStep(double value) const;
  // Marks the parts of the cell at `placement` that show something new for repainting.
  void markChangedParts(const CellPlacement& placement, const MetricCellContent& before,
                        const MetricCellContent& after, double now);
  // Paints the marked parts together, in one paint.
  void paintMarkedParts();
  // The parts of the cell at `placement` that are repainted on their own, in the grid's pixels.
  QRect headerArea(const CellPlacement& placement) const;
  // The part of the header that the value's text takes while it changes as `motion` says.
  QRect valueArea(const CellPlacement& placement, const CellMotion& motion,
                  const MetricCellContent& content);
  QRect barArea(const CellPlacement& placement) const;
  QRect detailArea(const CellPlacement& placement) const;
  // Paints the header of the `cell`-th cell, at `placement`, where `region` (in the grid's pixels)
  // asks for it.
  void paintHeader(QPainter& painter, const QRegion& region, const CellPlacement& placement,
                   std::size_t cell, double now);
  void paintBar(QPainter& painter, const CellStyle& style, const CellMotion& motion, double now);
  void paintDetail(QPainter& painter, const MetricCellContent& content);
  // Works out the trend lines of the shown cells and marks those that changed for repainting.
  void takeTrend();
  void paintTrend(QPainter& painter, MetricKind kind);

  int columns_;
  double cellWidth_;    // at the usual size
  double scale_ = 1.0;  // what every length is multiplied by
  UsageFonts fonts_;
  CellGeometry cell_;  // the inside of every cell, which depends only on the width and scale
  MetricSample sample_;
  std::vector<MetricKind> order_ = MetricKind::defaultOrder();
  bool useFahrenheit_ = false;

  std::vector<MetricCellContent> contents_;
  std::vector<CellStyle> styles_;  // one for each of `contents_`
  GridGeometry grid_;
  std::map<MetricKind::Value, CellMotion> motion_;
  QRegion unpainted_;  // the parts marked for repainting, in the grid's pixels
  FrameTimer frameTimer_{frameIntervalMs};
  // The device pixels to a point, as of the last sample (at most five seconds old): the widget's
  // own lookup walks up to the screen, too slow for every frame. It only decides which frames are
  // worth painting, so a screen change may take a sample to show in it.
  double pixelRatio_ = 1.0;
  BarTrack track_;
  ShapedLines labels_;
  ValueTextRenderer values_;
  ShapedLines details_;
  bool showTrend_ = false;
  // The latest minute given with a sample; made only once one is given.
  std::unique_ptr<SampleHistory> history_;
  std::map<MetricKind::Value, std::vector<TrendLine::Run>> trend_;  // the lines drawn, by cell
};

}  // namespace brimly
