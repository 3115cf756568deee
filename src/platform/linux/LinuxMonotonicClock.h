#pragma once

#include "platform/MonotonicClock.h"

namespace brimly {

// CLOCK_MONOTONIC: seconds since boot, excluding suspend, never adjusted by time changes.
class LinuxMonotonicClock : public MonotonicClock {
 public:
  double nowSeconds() const override;
};

}  // namespace brimly
