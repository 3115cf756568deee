#pragma once

#include "usage/Color.h"
#include "usage/Theme.h"

// The colours of the settings window, always in the dark scheme.
namespace brimly::SettingsTheme {

// The window's background: the same surface as the control card.
inline constexpr Color surface = Theme::surface;
// The well behind the live preview.
inline constexpr Color drawer = Color::sRGB(0.0, 0.0, 0.0, 0.35);
// The switches, the selected tab and the preview's bars take the user's accent: `Accent`.
// The rule under the tab bar: deliberately a shade stronger than the control card's 0.07.
inline constexpr Color hairline = Color::sRGB(1.0, 1.0, 1.0, 0.08);

}  // namespace brimly::SettingsTheme
