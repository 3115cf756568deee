#pragma once

#include <cstdint>
#include <optional>

#include "platform/CpuTicksPort.h"

namespace brimly {

// The processor busy fraction of the whole machine, from the difference between two readings of
// the cumulative tick counters. Keeps the previous successful reading between calls.
class CpuLoad {
 public:
  // Busy share of the ticks that passed between `previous` and `current`: (user + system + nice)
  // over (user + system + idle + nice), clamped to 0…1; 0.0 when no tick passed.
  static double busyFraction(const CpuTicks& previous, const CpuTicks& current);

  // Ticks that passed on one 32-bit counter. The subtraction wraps, so a counter that went past
  // 2^32 still gives its small true difference. A difference of 2^31 or more can only come from a
  // counter that went backwards (idle time on tickless kernels, a processor taken offline): it
  // counts as no time at all rather than as four billion ticks.
  static std::uint32_t tickDelta(std::uint32_t previous, std::uint32_t current);

  // Feeds the result of one counter reading. A failed reading gives 0.0 and keeps the previous
  // counters; the first successful one gives 0.0 and becomes the base for the next.
  double update(const std::optional<CpuTicks>& reading);

  const std::optional<CpuTicks>& previousTicks() const { return previousCPUTicks_; }

 private:
  std::optional<CpuTicks> previousCPUTicks_;
};

}  // namespace brimly
