#pragma once

#include <QRect>

#include "panel/RootViewMetrics.h"
#include "platform/HoverZonePort.h"

namespace brimly {

// The part of the panel that takes the pointer, in the points of a root view `surfaceWidth` wide:
// the closed card's rectangle, the whole open card, or nothing. Both cards are the root view's own
// (see `RootViewMetrics::cardFrame`), whole points covering them. Shared by every desktop whose
// hover is a zone of the panel's own.
QRect hotZoneRect(HoverZonePort::Zone zone, const RootViewMetrics& metrics, int surfaceWidth);

}  // namespace brimly
