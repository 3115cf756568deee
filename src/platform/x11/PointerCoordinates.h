#pragma once

#include "core/Geometry.h"

namespace brimly {

// X11 reports the pointer from the root window's top-left corner in pixels; the panel logic works
// in bottom-left-origin points. The root window spans every screen, so its height is the height
// of the whole desktop, the same height the screen list is flipped with.
inline Point bottomLeftPointerPosition(double xTopLeft, double yTopLeft, double rootHeight,
                                       double pixelsPerPoint) {
  const double scale = pixelsPerPoint > 0.0 ? pixelsPerPoint : 1.0;
  return Point{xTopLeft / scale, (rootHeight - yTopLeft) / scale};
}

}  // namespace brimly
