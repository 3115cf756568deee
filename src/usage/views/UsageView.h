#pragma once

#include <QWidget>
#include <map>
#include <string>
#include <vector>

#include "core/MetricKind.h"
#include "panel/EasedAnimation.h"
#include "panel/views/FrameTimer.h"
#include "sampling/MetricSample.h"
#include "usage/MetricCellContent.h"
#include "usage/MetricGridLayout.h"
#include "usage/views/UsageTypography.h"

namespace brimly {

// The grid of metric cells: one per shown metric, in the user's order, each with its label, large
// value, coloured bar and detail line. It draws only what it is given (a sample, the order of the
// shown metrics and the temperature unit), so it serves the notch panel and a preview alike; a
// binding feeds it from the live monitor and the settings.
//
// Bar lengths glide to new values over half a second and a changed value text cross-fades over a
// quarter second, but only while the grid is on screen: a hidden grid takes new values at once and
// costs no frames.
class UsageView : public QWidget {
  Q_OBJECT

 public:
  // The notch panel's grid: three cells to a row, each 172 points wide.
  static constexpr int panelColumns = 3;
  static constexpr double panelCellWidth = 172.0;

  static constexpr double barAnimationSeconds = 0.5;
  static constexpr double textTransitionSeconds = 0.25;

  UsageView(int columns, double cellWidth, UsageTypography typography = UsageTypography::system(),
            QWidget* parent = nullptr);

  void setSample(const MetricSample& sample);
  void setMetricOrder(const std::vector<MetricKind>& order);
  void setUseFahrenheit(bool useFahrenheit);

  const std::vector<MetricCellContent>& cells() const { return contents_; }
  const GridGeometry& geometry() const { return grid_; }
  // The header row's height: the taller line of the label and value fonts, in whole points so
  // that the bars fall on whole pixels.
  double headerHeight() const { return headerHeight_; }
  // The bar value a cell shows right now (mid-animation it lies between the old and the new).
  double shownBarValue(MetricKind kind) const;

  FrameTimer& frameTimer() { return frameTimer_; }
  bool isAnimating() const { return frameTimer_.isRunning(); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct CellMotion {
    EasedAnimation bar{barAnimationSeconds};
    EasedAnimation textFade{textTransitionSeconds, TimingCurve::easeOut(), 1.0};
    std::string currentPrimary;
    std::string previousPrimary;  // fading out while `textFade` runs
  };

  void rebuild();
  void advance(double now);
  bool anyRunning(double now) const;
  void paintCell(QPainter& painter, const CellPlacement& placement,
                 const MetricCellContent& content, double now);

  int columns_;
  double cellWidth_;
  UsageTypography typography_;
  double headerHeight_ = 0.0;
  MetricSample sample_;
  std::vector<MetricKind> order_ = MetricKind::defaultOrder();
  bool useFahrenheit_ = false;

  std::vector<MetricCellContent> contents_;
  GridGeometry grid_;
  std::map<MetricKind::Value, CellMotion> motion_;
  FrameTimer frameTimer_;
};

}  // namespace brimly
