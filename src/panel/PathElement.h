#pragma once

#include "core/Geometry.h"

namespace brimly {

// One step of an outline, in a view's own coordinates (origin top left, y growing downwards).
// Angles are in radians: 0 points along +x and pi/2 along +y, so on screen an increasing angle
// turns clockwise. Arcs are always swept with increasing angle from `startAngle` to `endAngle`;
// like any arc added to a path, one that does not start at the current point is joined to it by a
// straight line.
struct PathElement {
  enum class Kind { move, line, arc, close };

  Kind kind = Kind::close;
  Point point;          // move, line: the point reached
  Point centre;         // arc
  double radius = 0.0;  // arc
  double startAngle = 0.0;
  double endAngle = 0.0;

  static PathElement moveTo(Point p) { return {Kind::move, p, {}, 0.0, 0.0, 0.0}; }
  static PathElement lineTo(Point p) { return {Kind::line, p, {}, 0.0, 0.0, 0.0}; }
  static PathElement arc(Point centre, double radius, double startAngle, double endAngle) {
    return {Kind::arc, {}, centre, radius, startAngle, endAngle};
  }
  static PathElement close() { return {}; }

  // The angle an arc turns through, in [0, 2*pi): the end angle is reached going forwards from the
  // start angle, so an end below the start wraps once around (3*pi/2 to 0 is a quarter turn).
  double sweep() const;
  // Where an arc begins and ends.
  Point arcStart() const;
  Point arcEnd() const;

  bool operator==(const PathElement&) const = default;
};

}  // namespace brimly
