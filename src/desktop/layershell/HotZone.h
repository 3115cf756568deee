#pragma once

#include <QRect>

#include "panel/RootViewMetrics.h"
#include "platform/HoverZonePort.h"

namespace brimly {

// The part of the layer surface that takes the pointer, in its points: the closed card's
// rectangle, the whole open card, or nothing. Both cards are the root view's own (see
// `RootViewMetrics::cardFrame`), whole points covering them.
QRect hotZoneRect(HoverZonePort::Zone zone, const RootViewMetrics& metrics, int surfaceWidth);

}  // namespace brimly
