#pragma once

#include "usage/Color.h"
#include "usage/Theme.h"

// The About window's colours. It is drawn dark whatever the system's appearance.
namespace brimly::AboutTheme {

// The same surface as the control card and the settings window.
inline constexpr Color surface = Theme::surface;

// The hairline between the tagline and the maker's mark: white at 8 %.
inline constexpr Color rule = Color::sRGB(1.0, 1.0, 1.0, 0.08);

}  // namespace brimly::AboutTheme
