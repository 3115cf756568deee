#pragma once

#include <QPainterPath>
#include <vector>

#include "panel/PathElement.h"

namespace brimly {

// The painter path of an outline given as path elements, in the same coordinates.
QPainterPath toPainterPath(const std::vector<PathElement>& elements);

}  // namespace brimly
