#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "core/Geometry.h"
#include "platform/DiskPort.h"
#include "platform/PropertyValue.h"

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

// The start-up volume's capacities from what the system answered for its resource keys (each
// nothing where the key had no answer). The "available for important usage" figure counts
// purgeable space as free and is preferred; the service behind it answers 0 (or nothing) where it
// has no answer, and a 0 would show the disk full, so then the plain available capacity stands in,
// as it does for an important-usage figure above the total. An available figure that is negative
// or above the total is no answer at all: the available capacity is then absent, never the cause
// of a negative used figure. The total is passed on as it came.
DiskCapacities volumeCapacities(std::optional<std::int64_t> availableForImportantUsage,
                                std::optional<std::int64_t> available,
                                std::optional<std::int64_t> total);

// A stored preference read as a Boolean, the way the user-defaults system's boolForKey: reads it,
// so that `defaults write … -bool true`, `-int 1` and `-string YES` all mean true: a Boolean is
// itself, a number is true when it is not zero, and a string is true when, after leading blanks,
// it starts with Y, y, T or t, or with a decimal number that is not zero (an optional sign and
// leading zeros skipped). Any other string is false. Lists, dictionaries and NaN are nothing.
std::optional<bool> preferenceBool(const PropertyValue& value);

// The largest square a system symbol is drawn into: symbols are icons, and a larger request is a
// mistake that would only cost memory.
inline constexpr int kLargestSymbolSide = 4096;

// Where a system symbol of `symbolSize` (any units, any aspect) is drawn in a square of `side`
// pixels: as large as fits with its aspect kept, centred. Nothing when the symbol or the square
// has no area, or the square is larger than kLargestSymbolSide.
std::optional<Rect> symbolPlacement(Size symbolSize, int side);

}  // namespace brimly
