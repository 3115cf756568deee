#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace brimly {

// How the user dresses Brimly: an accent colour for the windows' controls, the notch panel's size
// and whether each bar shows its recent trend. Each choice is persisted by the name it is stored
// under; a stored name that is not one of these reads as nothing, and the settings fall back to
// the defaults (green, regular, no trend), which are the look Brimly has always had.

// The accent of switches, selected tabs, header symbols, drag lines and focus rings. `system`
// follows the desktop's own accent (or highlight) colour where it has one.
enum class AccentChoice { green, blue, indigo, purple, pink, orange, graphite, system };

// Every accent, in the order the Appearance tab shows its swatches.
inline constexpr std::array<AccentChoice, 8> accentChoices = {
    AccentChoice::green, AccentChoice::blue,   AccentChoice::indigo,   AccentChoice::purple,
    AccentChoice::pink,  AccentChoice::orange, AccentChoice::graphite, AccentChoice::system,
};

// "green" … "system": the name stored in the settings.
std::string_view storedName(AccentChoice accent);
// "Green" … "System": the name people read and hear.
std::string_view displayName(AccentChoice accent);
std::optional<AccentChoice> accentChoiceNamed(std::string_view storedName);

// The open notch panel at its usual size, or with every length and its text a quarter larger.
enum class PanelSize { regular, large };

inline constexpr std::array<PanelSize, 2> panelSizes = {PanelSize::regular, PanelSize::large};

// "regular" or "large".
std::string_view storedName(PanelSize size);
// "Regular" or "Large".
std::string_view displayName(PanelSize size);
std::optional<PanelSize> panelSizeNamed(std::string_view storedName);
// What every length of the open panel is multiplied by: 1 for regular, 1.25 for large.
double scaleOf(PanelSize size);

}  // namespace brimly
