#include "panel/NotchShape.h"

#include <algorithm>
#include <numbers>

namespace brimly {

std::vector<PathElement> NotchShape::path(const Rect& rect) const {
  constexpr double pi = std::numbers::pi;
  const double w = rect.width;
  const double h = rect.height;
  const double t = topRadius;
  const double b = bottomRadius;
  return {
      PathElement::moveTo({0.0, t}),
      PathElement::arc({t, t}, t, pi, 3.0 * pi / 2.0),  // top left, ends at (t, 0)
      PathElement::lineTo({w - t, 0.0}),
      PathElement::arc({w - t, t}, t, 3.0 * pi / 2.0, 0.0),  // top right, ends at (w, t)
      PathElement::lineTo({w, h - b}),
      PathElement::arc({w - b, h - b}, b, 0.0, pi / 2.0),  // bottom right, ends at (w - b, h)
      PathElement::lineTo({b, h}),
      PathElement::arc({b, h - b}, b, pi / 2.0, pi),  // bottom left, ends at (0, h - b)
      PathElement::close(),
  };
}

bool NotchShape::plainlyContains(const Rect& frame, const Rect& area) const {
  const auto within = [&area](const Rect& band) {
    return area.x >= band.x && area.maxX() <= band.maxX() && area.y >= band.y &&
           area.maxY() <= band.maxY();
  };
  // Between the corners' columns the outline spans its full height; between their rows, its full
  // width.
  const double inset = std::max(topRadius, bottomRadius);
  return within({frame.x + inset, frame.y, frame.width - 2.0 * inset, frame.height}) ||
         within(
             {frame.x, frame.y + topRadius, frame.width, frame.height - topRadius - bottomRadius});
}

}  // namespace brimly
