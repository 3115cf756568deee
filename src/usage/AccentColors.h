#pragma once

#include <optional>

#include "core/Appearance.h"
#include "usage/Color.h"

// The colour behind each accent choice. Every swatch reads well on the windows' dark surface: each
// stands at least 3 : 1 against it, as a control's colour must, and white text is never set on it.
namespace brimly::AccentColors {

// The colour of `choice`. `system` takes `desktopAccent`, the desktop's own accent, and falls back
// to green where the desktop gives none.
Color of(AccentChoice choice, std::optional<Color> desktopAccent = std::nullopt);

}  // namespace brimly::AccentColors
