#pragma once

#include "core/Geometry.h"

namespace brimly {

// Converts between the panel logic's global coordinates (origin at the bottom left, y upwards)
// and a desktop whose global origin is at the top left with y downwards (X11's root window and
// Qt's global coordinates). x is the same in both.
//
// Convention: the flip axis is the primary screen's bottom edge. The primary screen's bottom-left
// corner becomes (0, 0), every other screen keeps its place relative to it, and screens below the
// primary get negative y. This is exactly how macOS lays out its screens (the menu-bar screen at
// the origin), so the geometry rules see the same numbers on both systems. The union of all
// screens' top edges was not chosen: the origin would then move whenever a screen stacked above
// the primary comes or goes.
//
// A rectangle flips as a whole: its top-left corner in one system is its bottom-left corner's
// mirror in the other, y' = axis − (y + height). A point is a rectangle of height 0, y' = axis − y,
// so the pointer on the primary screen's top row (y = 0 top-left) lies on that screen's top edge.
// Both conversions are their own inverse.
class DesktopCoordinates {
 public:
  // `primaryScreen` in top-left-origin desktop coordinates. The default (an empty primary screen
  // at the origin) flips around y = 0.
  explicit DesktopCoordinates(const Rect& primaryScreen = {});

  double axis() const { return axis_; }

  Rect toBottomLeft(const Rect& topLeft) const;
  Rect toTopLeft(const Rect& bottomLeft) const;
  Point toBottomLeft(Point topLeft) const;
  Point toTopLeft(Point bottomLeft) const;

 private:
  double axis_;
};

}  // namespace brimly
