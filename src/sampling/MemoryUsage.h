#pragma once

#include <cstdint>
#include <optional>

#include "platform/MemoryPort.h"

namespace brimly {

// Memory in use as the display counts it: active, wired and compressed pages. Inactive,
// speculative, purgeable and free pages are memory the system can hand out at once.
struct MemoryUsage {
  std::uint64_t usedBytes = 0;
  std::uint64_t totalBytes = 0;
  double fraction = 0.0;  // used / total, clamped to 0…1

  bool operator==(const MemoryUsage&) const = default;

  // Nothing when the statistics are missing, the physical size is unknown (0) or the figures
  // cannot describe real memory (a used figure beyond what 64 bits can count).
  static std::optional<MemoryUsage> from(const MemoryReading& reading);
};

}  // namespace brimly
