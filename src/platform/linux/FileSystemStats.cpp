#include "platform/linux/FileSystemStats.h"

#include <sys/statvfs.h>

#include <algorithm>
#include <limits>

namespace brimly {
namespace {

std::optional<std::int64_t> bytes(std::uint64_t count, std::uint64_t unit) {
  constexpr auto kMax = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
  if (unit == 0 || count > kMax / unit) return std::nullopt;
  return static_cast<std::int64_t>(count * unit);
}

}  // namespace

std::optional<FileSystemStats> PosixFileSystemStats::statistics(const std::string& path) const {
  struct statvfs info {};
  if (::statvfs(path.c_str(), &info) != 0) return std::nullopt;
  FileSystemStats stats;
  stats.fragmentSize = info.f_frsize;
  stats.blockSize = info.f_bsize;
  stats.blocks = info.f_blocks;
  stats.freeBlocks = info.f_bfree;
  stats.availableBlocks = info.f_bavail;
  return stats;
}

DiskCapacities diskCapacitiesFromStats(const FileSystemStats& stats) {
  const std::uint64_t unit = stats.fragmentSize != 0 ? stats.fragmentSize : stats.blockSize;
  DiskCapacities capacities;
  capacities.total = bytes(stats.blocks, unit);
  capacities.available = bytes(stats.availableBlocks, unit);
  capacities.used = bytes(stats.blocks - std::min(stats.freeBlocks, stats.blocks), unit);
  if (capacities.total && capacities.available) {
    capacities.available = std::min(*capacities.available, *capacities.total);
  }
  return capacities;
}

}  // namespace brimly
