#pragma once

#include "core/Geometry.h"

namespace brimly {

// The sizes the panel's root view is built with, and where its parts go. The card hangs from the
// top centre of the view: closed it covers exactly the notch, open it is the full content area.
// Between the two, `openness` runs from 0 (closed) to 1 (open) and may stray slightly outside that
// range while a spring settles.
struct RootViewMetrics {
  static constexpr double openWidth = 600.0;      // width of the open card and of the panel
  static constexpr double contentHeight = 116.0;  // open height below the notch
  static constexpr double gridPadding = 8.0;      // above and below the metric grid

  double notchInsetTop = 32.0;  // notch height: the closed height and the clear band on top
  double notchWidth = 200.0;    // the closed width
  double expandedWidth = openWidth;
  double expandedHeight = 32.0 + contentHeight;

  // The metrics for a measured notch: open width 600, open height notch height + 116.
  static RootViewMetrics forNotch(Size notch);

  // The black card's frame in a view `viewWidth` wide.
  Rect cardFrame(double viewWidth, double openness) const;
  // The full-size content column: it keeps its size while the card around it grows and shrinks,
  // centred under the card and anchored at the top.
  Rect contentFrame(double viewWidth) const;
  // Where the metric grid's own frame begins below the top: the notch band, then the padding.
  double gridTop() const { return notchInsetTop + gridPadding; }

  bool operator==(const RootViewMetrics&) const = default;
};

}  // namespace brimly
