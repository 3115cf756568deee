#pragma once

#include <QRect>

#include "core/Geometry.h"

namespace brimly {

// The strip a desktop's top panel reserves on a screen: how far the usable area starts below the
// screen's top edge. 0 when nothing is reserved or the usable area is not inside the screen.
double topStripThickness(const QRect& geometry, const QRect& availableGeometry);

}  // namespace brimly
