#include "sampling/ReadingThrottle.h"

namespace brimly {

ReadingThrottle::ReadingThrottle(double minimumSpacingSeconds) : spacing_(minimumSpacingSeconds) {}

bool ReadingThrottle::admit(double nowSeconds) {
  // Written so that a NaN spacing or time lets the reading through rather than stall it for good.
  const bool tooSoon = spacing_ > 0.0 && lastAdmitted_ && nowSeconds >= *lastAdmitted_ &&
                       nowSeconds - *lastAdmitted_ < spacing_;
  if (tooSoon) return false;
  lastAdmitted_ = nowSeconds;
  return true;
}

}  // namespace brimly
