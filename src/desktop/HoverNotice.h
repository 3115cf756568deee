#pragma once

#include <optional>
#include <string>

#include "desktop/HoverRoute.h"

namespace brimly {

// How the watch of the chosen route came out at launch.
enum class PointerWatch { watching, noDisplay, noXInput2, noShape };

// The one line Brimly prints at start about hovering: which route runs and why, or why hovering
// cannot open the panel (no route, or its watch could not start). Nothing on a headless platform.
std::optional<std::string> hoverNotice(const HoverRouteChoice& choice, PointerWatch watch);

}  // namespace brimly
