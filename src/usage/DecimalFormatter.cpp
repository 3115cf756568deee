#include "usage/DecimalFormatter.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>

#include "core/Precondition.h"

namespace brimly {

namespace {

// A non-negative decimal number as significant digits and the position of the decimal point:
// the value is 0.d1d2d3… × 10^pointPosition.
struct DecimalDigits {
  std::string digits;  // no leading zeros; "0" for zero
  long pointPosition = 0;
};

void setToZero(DecimalDigits& decimal) {
  decimal.digits.assign(1, '0');
  decimal.pointPosition = 1;
}

DecimalDigits shortestDigits(double magnitude) {
  std::array<char, 64> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                    std::chars_format::scientific);
  BRIMLY_REQUIRE(result.ec == std::errc{}, "decimal buffer too small");
  // The text is "d[.ddd]e±XX".
  DecimalDigits decimal;
  const char* cursor = buffer.data();
  while (cursor != result.ptr && *cursor != 'e') {
    if (*cursor != '.') decimal.digits.push_back(*cursor);
    ++cursor;
  }
  BRIMLY_REQUIRE(cursor != result.ptr, "scientific text without exponent");
  const long exponent = std::strtol(cursor + 1, nullptr, 10);
  decimal.pointPosition = exponent + 1;
  return decimal;
}

// Rounds to `fractionDigits` digits after the point, half to even, on the decimal digits.
void roundHalfEven(DecimalDigits& decimal, int fractionDigits) {
  if (decimal.digits == "0") return;
  const long keep = decimal.pointPosition + fractionDigits;
  const auto count = static_cast<long>(decimal.digits.size());
  if (keep >= count) return;
  if (keep < 0) {
    setToZero(decimal);
    return;
  }

  const auto keepSize = static_cast<std::size_t>(keep);
  const char first = decimal.digits[keepSize];
  bool roundUp = first > '5';
  if (first == '5') {
    const bool moreFollows =
        decimal.digits.find_first_not_of('0', keepSize + 1) != std::string::npos;
    const bool lastKeptIsOdd = keep > 0 && (decimal.digits[keepSize - 1] - '0') % 2 == 1;
    roundUp = moreFollows || lastKeptIsOdd;
  }
  decimal.digits.resize(keepSize);
  if (roundUp) {
    std::size_t i = decimal.digits.size();
    while (i > 0 && decimal.digits[i - 1] == '9') {
      decimal.digits[i - 1] = '0';
      --i;
    }
    if (i == 0) {
      decimal.digits.insert(decimal.digits.begin(), '1');
      ++decimal.pointPosition;
    } else {
      ++decimal.digits[i - 1];
    }
  }
  const auto lastNonZero = decimal.digits.find_last_not_of('0');
  if (lastNonZero == std::string::npos) {
    setToZero(decimal);
    return;
  }
  decimal.digits.resize(lastNonZero + 1);
}

std::string plainText(const DecimalDigits& decimal) {
  if (decimal.digits == "0") return "0";
  const auto count = static_cast<long>(decimal.digits.size());
  std::string integerPart;
  std::string fractionPart;
  if (decimal.pointPosition <= 0) {
    integerPart = "0";
    fractionPart =
        std::string(static_cast<std::size_t>(-decimal.pointPosition), '0') + decimal.digits;
  } else if (decimal.pointPosition >= count) {
    integerPart =
        decimal.digits + std::string(static_cast<std::size_t>(decimal.pointPosition - count), '0');
  } else {
    const auto split = static_cast<std::size_t>(decimal.pointPosition);
    integerPart = decimal.digits.substr(0, split);
    fractionPart = decimal.digits.substr(split);
  }
  return fractionPart.empty() ? integerPart : integerPart + "." + fractionPart;
}

}  // namespace

DecimalFormatter::DecimalFormatter(int maximumFractionDigits)
    : maximumFractionDigits_(maximumFractionDigits) {
  BRIMLY_REQUIRE(maximumFractionDigits >= 0 && maximumFractionDigits <= 20,
                 "fraction digit limit out of range");
}

std::optional<std::string> DecimalFormatter::string(double value) const {
  if (!std::isfinite(value)) return std::nullopt;
  const std::string sign = std::signbit(value) ? "-" : "";
  DecimalDigits decimal = shortestDigits(std::fabs(value));
  roundHalfEven(decimal, maximumFractionDigits_);
  return sign + plainText(decimal);
}

}  // namespace brimly
