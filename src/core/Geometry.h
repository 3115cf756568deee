#pragma once

namespace brimly {

// Plain geometry in points. Screen rectangles and the pointer use global coordinates with the
// origin at the bottom left (y grows upwards); inside a view the origin is the top left.
struct Point {
  double x = 0.0;
  double y = 0.0;

  bool operator==(const Point&) const = default;
};

struct Size {
  double width = 0.0;
  double height = 0.0;

  bool operator==(const Size&) const = default;
};

struct Rect {
  double x = 0.0;
  double y = 0.0;
  double width = 0.0;
  double height = 0.0;

  double minX() const { return x; }
  double maxX() const { return x + width; }
  double minY() const { return y; }
  double maxY() const { return y + height; }
  double midX() const { return x + width / 2.0; }
  double midY() const { return y + height / 2.0; }
  // Inclusive of the lower edges, exclusive of the upper ones, as screen frames are tested.
  bool contains(Point p) const { return p.x >= x && p.x < maxX() && p.y >= y && p.y < maxY(); }

  bool operator==(const Rect&) const = default;
};

struct EdgeInsets {
  double top = 0.0;
  double left = 0.0;
  double bottom = 0.0;
  double right = 0.0;

  bool operator==(const EdgeInsets&) const = default;
};

}  // namespace brimly
