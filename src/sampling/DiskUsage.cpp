#include "sampling/DiskUsage.h"

#include <algorithm>
#include <limits>

namespace brimly {

bool DiskUsage::isRefreshCall(std::int64_t sampleNumber) {
  return sampleNumber == 1 || sampleNumber % 10 == 0;
}

namespace {

// ⌈used × 100 ÷ (used + available)⌉, computed in whole numbers as `df` does; 0 for an empty base.
std::optional<std::int64_t> usePercentOf(std::int64_t used, std::int64_t available) {
  if (used < 0 || available < 0) return std::nullopt;
  auto usedPart = static_cast<std::uint64_t>(used);
  auto base = usedPart + static_cast<std::uint64_t>(available);  // below 2^64: each is below 2^63
  // Beyond 180 PB the product would not fit: both figures lose the same low bits first.
  while (usedPart > std::numeric_limits<std::uint64_t>::max() / 100) {
    usedPart >>= 1;
    base >>= 1;
  }
  if (base == 0) return 0;
  const std::uint64_t scaled = usedPart * 100;
  return static_cast<std::int64_t>(scaled / base + (scaled % base != 0 ? 1 : 0));
}

}  // namespace

std::optional<DiskUsage> DiskUsage::from(const std::optional<DiskCapacities>& capacities) {
  if (!capacities) return std::nullopt;
  if (!capacities->available) return std::nullopt;
  if (!capacities->total || *capacities->total < 1) return std::nullopt;
  const std::int64_t total = *capacities->total;
  if (capacities->used) {
    const std::int64_t used = std::clamp<std::int64_t>(*capacities->used, 0, total);
    const std::optional<std::int64_t> percent = usePercentOf(used, *capacities->available);
    if (!percent) return std::nullopt;
    return DiskUsage{used, total, percent};
  }
  std::int64_t used = 0;
  if (__builtin_sub_overflow(total, *capacities->available, &used)) return std::nullopt;
  return DiskUsage{used, total, std::nullopt};
}

double DiskUsage::fraction() const {
  if (totalBytes < 1) return 0.0;
  const double share = usePercent
                           ? static_cast<double>(*usePercent) / 100.0
                           : static_cast<double>(usedBytes) / static_cast<double>(totalBytes);
  return std::clamp(share, 0.0, 1.0);
}

}  // namespace brimly
