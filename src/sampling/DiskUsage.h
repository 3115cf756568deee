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
  // Where the volume's used space was reported apart from what is available (Linux): `df`'s
  // "Use%", used ÷ (used + available) rounded up to a whole percent. Nothing where used is
  // total − available (macOS).
  std::optional<std::int64_t> usePercent = std::nullopt;

  bool operator==(const DiskUsage&) const = default;

  // Whether the sample with this 1-based number reads the volume: the first one and every tenth
  // (1, 10, 20, 30, …). The second reading comes nine samples after the first, on purpose.
  static bool isRefreshCall(std::int64_t sampleNumber);

  // Used = total − available, where "available" counts purgeable space as free: what the user
  // would have to delete; or, where the port reports it, the used space as the file system
  // counts it, capped at the total. Nothing (keep the last figures) when the query failed,
  // total or available is missing, the total is below 1 byte, or a figure cannot be represented.
  static std::optional<DiskUsage> from(const std::optional<DiskCapacities>& capacities);

  // The use percent ÷ 100 where there is one, else used / total; clamped to 0…1, and 0.0 while the
  // total is below 1 byte.
  double fraction() const;
};

}  // namespace brimly
