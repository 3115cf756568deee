#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace brimly {

// One cumulative energy counter. `wrapsAt` is the value at which the counter starts again from 0,
// or 0 for a counter that never wraps.
struct EnergyCounter {
  std::string channel;
  std::int64_t value = 0;
  std::int64_t wrapsAt = 0;

  bool operator==(const EnergyCounter&) const = default;
};

class EnergyCounterPort {
 public:
  virtual ~EnergyCounterPort() = default;
  // False when the counters cannot be reached at all (library or permission missing).
  virtual bool isAvailable() const = 0;
  // The counters now, in a stable order; nothing when this reading failed.
  virtual std::optional<std::vector<EnergyCounter>> readCounters() = 0;
  // Joules per counter unit (1e-9 for nanojoules, 1e-6 for microjoules).
  virtual double joulesPerUnit() const = 0;
};

}  // namespace brimly
