#include "panel/views/NotchPainterPath.h"

#include <numbers>

namespace brimly {

QPainterPath toPainterPath(const std::vector<PathElement>& elements) {
  constexpr double degreesPerRadian = 180.0 / std::numbers::pi;
  QPainterPath path;
  for (const PathElement& element : elements) {
    switch (element.kind) {
      case PathElement::Kind::move:
        path.moveTo(element.point.x, element.point.y);
        break;
      case PathElement::Kind::line:
        path.lineTo(element.point.x, element.point.y);
        break;
      case PathElement::Kind::arc: {
        // Qt measures angles counter-clockwise on screen, ours turn clockwise (y grows downwards),
        // so both the start and the sweep change sign. arcTo joins the current point to the arc's
        // start with a line, as the elements expect.
        const double r = element.radius;
        const QRectF box(element.centre.x - r, element.centre.y - r, 2.0 * r, 2.0 * r);
        path.arcTo(box, -element.startAngle * degreesPerRadian,
                   -element.sweep() * degreesPerRadian);
        break;
      }
      case PathElement::Kind::close:
        path.closeSubpath();
        break;
    }
  }
  return path;
}

}  // namespace brimly
