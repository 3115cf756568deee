#pragma once

#include <cstdint>
#include <optional>

#include "platform/DiskPort.h"

namespace brimly {

// The start-up volume's use. The volume query is the slowest reading, so it is refreshed only on
// some samples and the last good figures are shown in between.
struct DiskUsage {
  std::int64_t usedBytes = 0;
  std::int64_t totalBytes = 0;

  bool operator==(const DiskUsage&) const = default;

  // Whether the sample with this 1-based number reads the volume: the first one and every tenth
  // (1, 10, 20, 30, …). The second reading comes nine samples after the first, on purpose.
  static bool isRefreshCall(std::int64_t sampleNumber);

  // Used = total − available, where "available" counts purgeable space as free: what the user
  // would have to delete. Nothing (keep the last figures) when the query failed, either capacity
  // is missing, the total is below 1 byte, or the difference cannot be represented.
  static std::optional<DiskUsage> from(const std::optional<DiskCapacities>& capacities);

  // used / total clamped to 0…1; 0.0 while the total is below 1 byte.
  double fraction() const;
};

}  // namespace brimly
