#pragma once

#include "core/Geometry.h"

namespace brimly {

// Where the status item is taken to be when the tray or host tells only where a click landed, or
// nothing at all: a StatusNotifierItem host passes a position with each click, not the item's
// rectangle, and some trays keep their icons' places to themselves. Qt's global points, top-left
// origin.
namespace ItemPlace {

// The side of the square taken for the item around a click: a tray icon's usual size.
inline constexpr double iconSize = 24.0;
// How high a top bar is taken to be where no panel reserves a strip of the screen.
inline constexpr double usualBarHeight = 32.0;

// The item taken to be a tray icon centred on `click`.
Rect around(Point click);

// Where no position is known: an item in the top-right corner of the screen `geometry` whose
// usable area is `available`, as high as the strip its top panel reserves (a usual bar where none
// does), so that the card hangs from that corner.
Rect topRightCorner(const Rect& geometry, const Rect& available);

}  // namespace ItemPlace

}  // namespace brimly
