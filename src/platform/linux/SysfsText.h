#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace brimly {

// One sysfs attribute's text without its trailing newline; other whitespace is kept, since values
// such as "Not charging" and firmware model names contain spaces.
std::string sysfsString(std::string_view text);

// A decimal integer attribute ("58000\n", "-1520000\n"). Surrounding blanks are tolerated;
// anything else, an empty text or a value beyond signed 64 bits gives nothing.
std::optional<std::int64_t> parseSysfsInteger(std::string_view text);

// The same for an unsigned value, which may use the full 64 bits.
std::optional<std::uint64_t> parseSysfsUnsigned(std::string_view text);

}  // namespace brimly
