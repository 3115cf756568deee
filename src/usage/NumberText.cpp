#include "usage/NumberText.h"

#include <array>
#include <charconv>
#include <cmath>

#include "core/Precondition.h"

namespace brimly::NumberText {

namespace {

std::string nonFiniteText(double value) {
  if (std::isnan(value)) return "nan";
  return value < 0 ? "-inf" : "inf";
}

}  // namespace

std::string fixed(double value, int fractionDigits) {
  BRIMLY_REQUIRE(fractionDigits >= 0 && fractionDigits <= 17, "fraction digits out of range");
  if (!std::isfinite(value)) return nonFiniteText(value);
  // 309 integer digits at most for a double, a sign, a point and the fraction.
  std::array<char, 352> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::fixed, fractionDigits);
  BRIMLY_REQUIRE(result.ec == std::errc{}, "number text buffer too small");
  return std::string(buffer.data(), result.ptr);
}

std::string shortest(double value) {
  if (!std::isfinite(value)) return nonFiniteText(value);
  std::array<char, 64> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  BRIMLY_REQUIRE(result.ec == std::errc{}, "number text buffer too small");
  return std::string(buffer.data(), result.ptr);
}

}  // namespace brimly::NumberText
