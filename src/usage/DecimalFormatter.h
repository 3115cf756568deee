#pragma once

#include <optional>
#include <string>

namespace brimly {

// A plain decimal number formatter that does not depend on the user's locale: "." as the decimal
// point, no grouping separators, no exponent, at most `maximumFractionDigits` digits after the
// point and no trailing zeros.
//
// Rounding is half to even and works on the shortest decimal text of the double (the digits a
// person would write for it), not on its exact binary value: 0.15 with one digit gives "0.2" and
// 0.25 gives "0.2", as a decimal formatter presents them. A negative value that rounds to zero
// keeps its sign ("-0").
class DecimalFormatter {
 public:
  explicit DecimalFormatter(int maximumFractionDigits);

  int maximumFractionDigits() const { return maximumFractionDigits_; }

  // The text of `value`, or nothing when the value is not finite.
  std::optional<std::string> string(double value) const;

 private:
  int maximumFractionDigits_;
};

}  // namespace brimly
