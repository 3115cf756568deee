#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

#include "panel/FadeAnimation.h"
#include "panel/NotchShape.h"
#include "panel/RootViewMetrics.h"
#include "panel/SpringAnimation.h"
#include "panel/views/FrameTimer.h"

namespace brimly {

class CardLayerEffect;
class PanelState;

// What the notch panel shows: a black card hanging from the top centre, exactly the notch's size
// while closed, springing open to the full content size when the panel state opens, with the metric
// grid fading in below a clear band of the notch's height. Everything outside the card is left
// transparent. On a screen without a notch the closed card is not drawn at all: it fades in as it
// begins to grow (see `RootViewMetrics::cardOpacity`). The view animates only while something
// moves; at rest it neither ticks nor repaints.
class RootView : public QWidget {
  Q_OBJECT

 public:
  // The card's outline at the usual size (see `RootViewMetrics::cardOutline`).
  static constexpr NotchShape outline{7.0, 22.0};
  static constexpr double springResponse = 0.42;  // seconds
  static constexpr double springDampingFraction = 1.0;

  // `grid` (may be null) becomes a child of the view and is shown centred under the notch band,
  // at its size hint; the view starts in the state's current form, without animating. Whenever
  // the grid needs no layer it is marked as painting opaquely (Qt::WA_OpaquePaintEvent), in the
  // window colour of its palette, which the view sets to the card's black.
  RootView(PanelState& state, const RootViewMetrics& metrics, QWidget* grid,
           QWidget* parent = nullptr);
  ~RootView() override;

  const RootViewMetrics& metrics() const { return metrics_; }
  QWidget* grid() const { return grid_; }

  // Where the card is now, in the view's coordinates, how opaque it is (0: nothing is drawn), and
  // how far the content has faded in.
  Rect cardFrame() const;
  // The card's outline now (see `RootViewMetrics::cardOutline`).
  NotchShape cardOutline() const;
  double cardOpacity() const;
  double contentOpacity() const;

  // Where something other than the view's own window puts it on screen (a layer surface it is
  // painted into), `hasShownFrame` tells whether a frame of it is there yet: until then a change
  // of state jumps instead of animating. By default the window's exposure tells.
  void setFrameShownCheck(std::function<bool()> hasShownFrame);

  // The clock and frame pacing, exposed so tests can step time by hand.
  FrameTimer& frameTimer() { return frameTimer_; }
  bool isAnimating() const { return frameTimer_.isRunning(); }

  QSize sizeHint() const override;

 signals:
  // The card moved or changed its size: on every animation frame, on a jump straight to a form
  // (before the first frame is on screen), and when the view was resized.
  void cardChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void setOpen(bool open);
  // Shown, but not yet drawn on screen: a change now has nothing to animate from.
  bool isAwaitingFirstFrame() const;
  void advance(double now);
  void placeGrid();
  void applyToGrid(double now);

  RootViewMetrics metrics_;
  QPointer<QWidget> grid_;
  // The layer the grid is drawn through while it fades or the card cuts it; none otherwise. The
  // grid owns it.
  CardLayerEffect* gridEffect_ = nullptr;
  std::function<bool()> hasShownFrame_;
  FrameTimer frameTimer_;
  SpringAnimation openness_;
  FadeAnimation contentFade_;
};

}  // namespace brimly
