#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "sampling/MetricSample.h"
#include "sampling/SamplingRateControl.h"

namespace brimly {

// A sample with the time it was taken, in seconds on the platform's monotonic clock.
struct TimedSample {
  double takenAt = 0.0;
  MetricSample sample;

  bool operator==(const TimedSample&) const = default;
};

// The latest samples the monitor took, oldest first, in a ring of fixed size: a minute at the open
// panel's rate of one a second, both ends counted, and so a minute at any slower rate (twelve
// gaps of five seconds while the panel is closed). A newer sample pushes out the oldest. It is
// filled only with the samples the monitor takes anyway and never makes one up: when the timer
// restarts often (the panel opened and closed over and over), it holds less than a minute.
class SampleHistory {
 public:
  static constexpr double windowSeconds = 60.0;
  static constexpr std::size_t capacity =
      static_cast<std::size_t>(windowSeconds / SamplingRateControl::openInterval) + 1;

  void record(double takenAt, const MetricSample& sample);

  std::size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  // The `index`-th oldest sample held; `index` must be below `size()`.
  const TimedSample& at(std::size_t index) const;
  // When the newest sample was taken, when there is one.
  std::optional<double> newestTime() const;

 private:
  std::array<TimedSample, capacity> slots_{};
  std::size_t oldest_ = 0;  // the slot of `at(0)`
  std::size_t size_ = 0;
};

}  // namespace brimly
