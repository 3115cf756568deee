#include "platform/macos/MacReadingRules.h"

namespace brimly {
namespace {

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  const auto last = text.find_last_not_of(kBlanks);
  return text.substr(first, last - first + 1);
}

}  // namespace

std::optional<Rect> presentArea(Rect area) {
  if (!(area.width > 0.0) || !(area.height > 0.0)) return std::nullopt;
  return area;
}

std::optional<std::int64_t> toNanojoules(std::int64_t value, std::string_view unitLabel) {
  const std::string_view unit = trimmed(unitLabel);
  std::int64_t factor = 1;
  if (unit == "J") {
    factor = 1'000'000'000;
  } else if (unit == "mJ") {
    factor = 1'000'000;
  } else if (unit == "uJ" || unit == "\u00b5J" || unit == "\u03bcJ") {
    factor = 1'000;
  } else if (unit == "pJ") {
    return value / 1'000;
  }
  std::int64_t scaled = 0;
  if (__builtin_mul_overflow(value, factor, &scaled)) return std::nullopt;
  return scaled;
}

}  // namespace brimly
