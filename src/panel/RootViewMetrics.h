#pragma once

#include "core/Geometry.h"
#include "panel/NotchShape.h"

namespace brimly {

// The sizes the panel's root view is built with, and where its parts go. The card hangs from the
// top centre of the view: closed it covers exactly the notch, open it is the full content area.
// Between the two, `openness` runs from 0 (closed) to 1 (open) and may stray slightly outside that
// range while a spring settles. A larger panel (see `scaleOf`) multiplies every length of the open
// card by `scale`; the closed card stays the notch.
struct RootViewMetrics {
  static constexpr double openWidth = 600.0;      // width of the open card and of the panel
  static constexpr double contentHeight = 116.0;  // open height below the notch
  static constexpr double gridPadding = 8.0;      // above and below the metric grid
  // How far the card opens while it fades in on a screen without a notch: about the first 0.09 s
  // of the spring, so that it is opaque before the grid begins to fade in over it.
  static constexpr double fadeInOpenness = 0.4;

  double notchInsetTop = 32.0;  // notch height: the closed height and the clear band on top
  double notchWidth = 200.0;    // the closed width
  double expandedWidth = openWidth;
  double expandedHeight = 32.0 + contentHeight;
  // Whether a camera housing hides the closed card. Where none does, a black card there would
  // cover whatever lies at the top centre of the screen, so it is not drawn at all while closed.
  bool hasNotch = true;
  double scale = 1.0;  // what every length of the open card is multiplied by

  // The metrics for a measured notch: open width 600, open height notch height + 116, the 600
  // and the 116 (and the grid's padding) `scale` times larger.
  static RootViewMetrics forNotch(Size notch, bool hasNotch, double scale = 1.0);

  // The black card's frame in a view `viewWidth` wide.
  Rect cardFrame(double viewWidth, double openness) const;
  // How opaque the black card is. Always 1 over a notch. Without one it is 0 while closed and
  // eases in and out (no sudden step at either end) as it opens to `fadeInOpenness`; being tied
  // to the card's size rather than to a clock, it fades out the same way as the card shrinks back
  // and is gone just as the card arrives, and a reversal in mid-flight never makes it jump.
  double cardOpacity(double openness) const;
  // The card's outline: `usual` over the closed notch, its radii growing with the card to `scale`
  // times theirs when open, so that a larger card keeps the same proportions.
  NotchShape cardOutline(const NotchShape& usual, double openness) const;
  // The full-size content column: it keeps its size while the card around it grows and shrinks,
  // centred under the card and anchored at the top.
  Rect contentFrame(double viewWidth) const;
  // Where the metric grid's own frame begins below the top: the notch band, then the padding.
  double gridTop() const { return notchInsetTop + gridPadding * scale; }

  bool operator==(const RootViewMetrics&) const = default;
};

}  // namespace brimly
