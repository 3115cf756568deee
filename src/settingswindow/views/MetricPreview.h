#pragma once

#include <QWidget>
#include <map>
#include <vector>

#include "accessibility/AccessibleParts.h"
#include "core/MetricKind.h"
#include "panel/EasedAnimation.h"
#include "panel/views/FrameTimer.h"
#include "settingswindow/MetricPreviewLayout.h"
#include "usage/views/UsageView.h"

namespace brimly {

class AppSettings;
class SystemMonitor;

// A small replica of the notch panel's grid: one cell per shown metric, in the user's order and
// three to a row, each its short title over a thin accent bar that shows the live reading. It
// follows the settings' metric order and every sample the monitor applies; a bar eases to its new
// length over 0.4 seconds while the preview is on screen, and takes it at once while it is not.
// Assistive technologies read each cell as a label of the metric's name and the value the panel
// shows for it ("CPU 31%"), formed when they ask.
class MetricPreview : public QWidget, public AccessibleParts {
  Q_OBJECT

 public:
  static constexpr double barAnimationSeconds = 0.4;

  // `settings` and `monitor` must outlive the preview.
  MetricPreview(AppSettings& settings, const SystemMonitor& monitor,
                double cellWidth = MetricPreviewLayout::cellWidth, QWidget* parent = nullptr);

  // The preview laid out at its current width.
  const MetricPreviewGeometry& placement() const { return geometry_; }
  double cellWidth() const { return cellWidth_; }
  // How full the bar of `kind` is drawn right now (mid-animation, between the old and the new);
  // 0 for a metric that is not shown.
  double shownFill(MetricKind kind) const;
  // Where the bar of `kind` is heading.
  double targetFill(MetricKind kind) const;

  // The clock and frame pacing, exposed so tests can step time by hand.
  FrameTimer& frameTimer() { return frameTimer_; }
  bool isAnimating() const { return frameTimer_.isRunning(); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  QAccessible::Role accessibleRole() const override { return QAccessible::Grouping; }
  std::vector<DrawnText> drawnTexts() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void takeOrder();
  void takeSample();
  void relayout();
  void advance(double now);

  AppSettings& settings_;
  const SystemMonitor& monitor_;
  double cellWidth_;
  KindSizes titleSizes_;
  MetricPreviewGeometry geometry_;
  std::map<MetricKind::Value, EasedAnimation> bars_;
  // The bars glide at the panel grid's 30 frames a second: a 2.5-point bar easing over 0.4 s looks
  // no smoother at 60, and the window stays cheap while it is left open.
  FrameTimer frameTimer_{UsageView::frameIntervalMs};
};

}  // namespace brimly
