#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/EnergyCounterPort.h"
#include "platform/MonotonicClock.h"

namespace brimly {

// The power drawn by the processor package or system-on-chip, in watts: the energy its counters
// gained between two readings divided by the time between them. Only channels whose name
// contains "Energy" (in any case) are summed.
class EnergyReader {
 public:
  // Two readings closer than this give no rate: the counters move in steps too coarse for it.
  static constexpr double minimumIntervalSeconds = 0.05;
  // A rate at or above this (or below 0) comes from a counter reset or a clock jump.
  static constexpr double maximumWatts = 500.0;

  // A null port reads as a machine without energy counters. `clock` must outlive the reader.
  EnergyReader(std::unique_ptr<EnergyCounterPort> port, const MonotonicClock& clock);
  ~EnergyReader();
  EnergyReader(const EnergyReader&) = delete;
  EnergyReader& operator=(const EnergyReader&) = delete;

  // Watts since the previous reading. The first call after construction only primes and gives
  // nothing. Every successful reading becomes the base for the next call, also when it gave no
  // rate (too soon after the last, channels changed, or an implausible result).
  std::optional<double> sampleSystemPower();

  // Whether the last reading of the counters held an energy channel: the machine has a source of
  // its power draw, though the first reading gives no watts yet.
  bool hasCounters() const;

  static bool isEnergyChannel(std::string_view channel);

  // Counter units gained by one counter. A counter that went down has wrapped once when it says
  // where it wraps; otherwise the negative difference stands (and makes the rate implausible).
  // Nothing when the arithmetic would overflow.
  static std::optional<std::int64_t> counterDelta(const EnergyCounter& earlier,
                                                  const EnergyCounter& later);

  // The summed difference of the energy channels between two readings. Nothing when the two lists
  // do not name the same channels in the same order, or the sum cannot be represented.
  static std::optional<std::int64_t> energyDelta(const std::vector<EnergyCounter>& earlier,
                                                 const std::vector<EnergyCounter>& later);

 private:
  std::unique_ptr<EnergyCounterPort> port_;
  const MonotonicClock& clock_;
  std::optional<std::vector<EnergyCounter>> previousSample_;
  double previousTime_ = 0.0;
};

}  // namespace brimly
