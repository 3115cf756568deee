#pragma once

#include <optional>

namespace brimly {

// Lets a reading through at most once per spacing of a monotonic clock. Some systems answer a
// statistics call made too soon after the previous one with a copy of an earlier answer, and a
// processor load taken between two equal answers reads 0 %; the throttle keeps such calls from
// being made at all.
class ReadingThrottle {
 public:
  // No spacing (0 or less) lets every reading through.
  explicit ReadingThrottle(double minimumSpacingSeconds);

  // Whether a reading may be taken at `nowSeconds`: the first always may, a later one once
  // `minimumSpacingSeconds` have passed since the last one let through (or the clock went back).
  // A reading let through counts as taken at `nowSeconds`.
  bool admit(double nowSeconds);

  double minimumSpacingSeconds() const { return spacing_; }

 private:
  double spacing_;
  std::optional<double> lastAdmitted_;
};

}  // namespace brimly
