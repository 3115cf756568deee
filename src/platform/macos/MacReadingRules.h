#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "core/Geometry.h"

// The few decisions the macOS readers make about what the system hands them, kept free of system
// headers so that they are tested on every platform.

namespace brimly {

// A screen's menu-bar strip beside the camera housing. The system reports an empty rectangle
// where there is no housing; that is no area at all.
std::optional<Rect> presentArea(Rect area);

// Energy report channels each count in their own unit ("mJ", "uJ", "nJ", …, sometimes padded with
// blanks). Converts a counter to nanojoules by its unit label; a missing or unknown label leaves
// the value as it is (taken as nanojoules). Nothing when the scaled value does not fit.
std::optional<std::int64_t> toNanojoules(std::int64_t value, std::string_view unitLabel);

}  // namespace brimly
