#include "platform/macos/MacReadingRules.h"

#include <algorithm>
#include <cctype>
#include <cmath>

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

DiskCapacities volumeCapacities(std::optional<std::int64_t> availableForImportantUsage,
                                std::optional<std::int64_t> available,
                                std::optional<std::int64_t> total) {
  const auto withinTotal = [&](std::int64_t bytes) { return !total || bytes <= *total; };
  DiskCapacities capacities{.available = std::nullopt, .total = total};
  if (availableForImportantUsage && *availableForImportantUsage > 0 &&
      withinTotal(*availableForImportantUsage)) {
    capacities.available = availableForImportantUsage;
  } else if (available && *available >= 0 && withinTotal(*available)) {
    capacities.available = available;
  }
  return capacities;
}

std::optional<bool> preferenceBool(const PropertyValue& value) {
  if (const auto* flag = value.get<bool>()) return *flag;
  if (const auto* integer = value.get<std::int64_t>()) return *integer != 0;
  if (const auto* real = value.get<double>()) {
    if (std::isnan(*real)) return std::nullopt;
    return *real != 0.0;
  }
  const auto* text = value.get<std::string>();
  if (text == nullptr) return std::nullopt;
  std::size_t i = 0;
  while (i < text->size() && std::isspace(static_cast<unsigned char>((*text)[i])))
    ++i;
  if (i == text->size()) return false;
  const char first = (*text)[i];
  if (first == 'Y' || first == 'y' || first == 'T' || first == 't') return true;
  if (first == '+' || first == '-') ++i;
  while (i < text->size() && (*text)[i] == '0')
    ++i;
  return i < text->size() && (*text)[i] >= '1' && (*text)[i] <= '9';
}

std::optional<Rect> symbolPlacement(Size symbolSize, int side) {
  // Written so that NaN fails every test.
  if (!(symbolSize.width > 0.0) || !(symbolSize.height > 0.0) || side <= 0) return std::nullopt;
  if (side > kLargestSymbolSide) return std::nullopt;
  if (!std::isfinite(symbolSize.width) || !std::isfinite(symbolSize.height)) return std::nullopt;
  const double square = side;
  const double scale = std::min(square / symbolSize.width, square / symbolSize.height);
  const double width = symbolSize.width * scale;
  const double height = symbolSize.height * scale;
  return Rect{(square - width) / 2.0, (square - height) / 2.0, width, height};
}

}  // namespace brimly
