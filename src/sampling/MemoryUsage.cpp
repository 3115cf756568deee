#include "sampling/MemoryUsage.h"

#include <algorithm>
#include <cmath>

namespace brimly {

std::optional<MemoryUsage> MemoryUsage::from(const MemoryReading& reading) {
  if (!reading.vm) return std::nullopt;
  if (reading.physicalBytes == 0) return std::nullopt;
  const auto pageSize = static_cast<double>(reading.pageSize);
  // Each product is taken on its own and then summed, in floating point, so that huge page
  // counts cannot overflow an integer on the way.
  const double used = pageSize * static_cast<double>(reading.vm->activePages) +
                      pageSize * static_cast<double>(reading.vm->wiredPages) +
                      pageSize * static_cast<double>(reading.vm->compressedPages);
  constexpr double twoTo64 = 18446744073709551616.0;
  if (!std::isfinite(used) || used < 0 || used >= twoTo64) return std::nullopt;
  const auto physical = static_cast<double>(reading.physicalBytes);
  MemoryUsage usage;
  usage.usedBytes = static_cast<std::uint64_t>(used);
  usage.totalBytes = reading.physicalBytes;
  usage.fraction = std::clamp(used / physical, 0.0, 1.0);
  return usage;
}

}  // namespace brimly
