#pragma once

#include <cstdint>
#include <optional>

namespace brimly {

// Cumulative processor tick counters summed over all processors, in 32-bit counters that wrap.
struct CpuTicks {
  std::uint32_t user = 0;
  std::uint32_t system = 0;
  std::uint32_t idle = 0;
  std::uint32_t nice = 0;

  bool operator==(const CpuTicks&) const = default;
};

class CpuTicksPort {
 public:
  virtual ~CpuTicksPort() = default;
  // The current counters, or nothing when the system refuses them.
  virtual std::optional<CpuTicks> readCpuTicks() = 0;
};

}  // namespace brimly
