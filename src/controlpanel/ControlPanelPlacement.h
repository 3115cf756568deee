#pragma once

#include <optional>

#include "core/Geometry.h"

namespace brimly {

// Where the control card goes: directly under the status item's button, centred on it and kept
// 6 points inside the screen's visible frame. Global bottom-left-origin points throughout.
namespace ControlPanelPlacement {

inline constexpr double screenMargin = 6.0;

// The area the card must stay inside: the visible frame of the button's screen; else the main
// screen's; else, with no screen at all, the button itself.
Rect boundingArea(const std::optional<Rect>& buttonScreenVisibleFrame,
                  const std::optional<Rect>& mainScreenVisibleFrame, const Rect& button);

// The card window's frame origin for a card of `card` size. Centred under the button, then pulled
// in from the right edge and then from the left edge, so the left margin wins when the card is
// wider than the area. The card's top edge touches the button's bottom edge; when that would put
// the card below the area (a panel at the bottom of the screen), it opens upwards from the
// button's top edge instead, when it fits there. Either way it then stays inside the area from
// top to bottom, where the area is tall enough.
Point cardOrigin(const Rect& button, const Rect& area, const Size& card);

}  // namespace ControlPanelPlacement

}  // namespace brimly
