#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>

namespace brimly {

// The accent colour the user picked in the system's appearance settings, as sRGB red, green and
// blue (0 to 1); none when the system cannot express it in sRGB. Main thread only.
std::optional<std::array<double, 3>> macControlAccentColor();

// Calls `changed` on the main thread whenever the system's colours change (the accent among
// them), for as long as the returned watch is kept.
std::shared_ptr<void> watchMacSystemColors(std::function<void()> changed);

}  // namespace brimly
