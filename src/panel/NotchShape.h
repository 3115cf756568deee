#pragma once

#include <utility>
#include <vector>

#include "core/Geometry.h"
#include "panel/PathElement.h"

namespace brimly {

// The outline of the black card: a rectangle whose two top corners share one radius and whose
// two bottom corners share another. The small top radius meets the screen edge; the large bottom
// radius gives the card its soft lower edge.
struct NotchShape {
  double topRadius = 0.0;
  double bottomRadius = 0.0;

  // The outline for a rectangle. Only its width and height are used: the path always starts from
  // (0, 0), because the shape clips a view whose bounds start there. The radii are used as they
  // are, never reduced to fit, so a rectangle narrower than two bottom radii gets crossing arcs.
  std::vector<PathElement> path(const Rect& rect) const;

  // Whether `area` lies inside the outline of `frame` where no corner reaches, so that filling the
  // outline there is filling `area` (both in the same coordinates; `frame` placed where it is).
  bool plainlyContains(const Rect& frame, const Rect& area) const;

  // The pair an animation interpolates: (topRadius, bottomRadius).
  std::pair<double, double> animatableData() const { return {topRadius, bottomRadius}; }
  void setAnimatableData(std::pair<double, double> data) {
    topRadius = data.first;
    bottomRadius = data.second;
  }

  bool operator==(const NotchShape&) const = default;
};

}  // namespace brimly
