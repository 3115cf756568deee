#include "platform/macos/MacMonotonicClock.h"

#include <mach/mach_time.h>

namespace brimly {
namespace {

class MacMonotonicClock final : public MonotonicClock {
 public:
  MacMonotonicClock() {
    mach_timebase_info_data_t timebase{};
    // The tick is not a nanosecond on Apple silicon (125/3 there); never assume 1/1.
    if (mach_timebase_info(&timebase) == KERN_SUCCESS && timebase.denom != 0) {
      nanosecondsPerTick_ = static_cast<double>(timebase.numer) / timebase.denom;
    }
  }

  double nowSeconds() const override {
    return static_cast<double>(mach_absolute_time()) * nanosecondsPerTick_ / 1e9;
  }

 private:
  double nanosecondsPerTick_ = 1.0;
};

}  // namespace

std::unique_ptr<MonotonicClock> makeMacMonotonicClock() {
  return std::make_unique<MacMonotonicClock>();
}

}  // namespace brimly
