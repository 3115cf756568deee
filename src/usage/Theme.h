#pragma once

#include "usage/Color.h"

// The colours shared by the panel and the windows, which are always drawn in the dark scheme
// whatever the system's appearance.
namespace brimly::Theme {

// The card behind the metric grid: pure black.
inline constexpr Color panelBackground = Color::sRGB(0.0, 0.0, 0.0);

// The dark scheme's three text styles, used by the panel and every window alike: primary text is
// white at 85 % opacity; secondary (dimmed) text a slightly blue-tinted white, (235, 235, 245) of
// 255, at 60 %; tertiary text (captions, section labels) the same white at 30 %.
inline constexpr Color primaryForeground = Color::sRGB(1.0, 1.0, 1.0, 0.85);
inline constexpr Color secondaryForeground =
    Color::sRGB(235.0 / 255.0, 235.0 / 255.0, 245.0 / 255.0, 0.6);
inline constexpr Color tertiaryForeground =
    Color::sRGB(235.0 / 255.0, 235.0 / 255.0, 245.0 / 255.0, 0.3);

// The surface of the control card and the windows, and the accent of their switches and marks.
inline constexpr Color surface = Color::sRGB(0.12, 0.125, 0.14);
inline constexpr Color accent = Color::displayP3(0.36, 0.78, 0.55);
// The control card's dividers: white at 7 %.
inline constexpr Color cardHairline = Color::sRGB(1.0, 1.0, 1.0, 0.07);

// The track under every metric bar: the primary foreground, faded to 7 %.
inline constexpr Color barTrack = primaryForeground.withOpacity(0.07);

}  // namespace brimly::Theme
