#pragma once

namespace brimly {

// Seconds on a clock that never jumps (time since boot or process start).
class MonotonicClock {
 public:
  virtual ~MonotonicClock() = default;
  virtual double nowSeconds() const = 0;
};

}  // namespace brimly
