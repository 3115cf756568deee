#include "sampling/DiskUsage.h"

#include <algorithm>

namespace brimly {

bool DiskUsage::isRefreshCall(std::int64_t sampleNumber) {
  return sampleNumber == 1 || sampleNumber % 10 == 0;
}

std::optional<DiskUsage> DiskUsage::from(const std::optional<DiskCapacities>& capacities) {
  if (!capacities) return std::nullopt;
  if (!capacities->available) return std::nullopt;
  if (!capacities->total || *capacities->total < 1) return std::nullopt;
  std::int64_t used = 0;
  if (__builtin_sub_overflow(*capacities->total, *capacities->available, &used)) {
    return std::nullopt;
  }
  return DiskUsage{used, *capacities->total};
}

double DiskUsage::fraction() const {
  if (totalBytes < 1) return 0.0;
  return std::clamp(static_cast<double>(usedBytes) / static_cast<double>(totalBytes), 0.0, 1.0);
}

}  // namespace brimly
