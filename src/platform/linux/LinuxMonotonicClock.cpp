#include "platform/linux/LinuxMonotonicClock.h"

#include <time.h>

namespace brimly {

double LinuxMonotonicClock::nowSeconds() const {
  timespec now{};
  if (::clock_gettime(CLOCK_MONOTONIC, &now) != 0) return 0.0;
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

}  // namespace brimly
