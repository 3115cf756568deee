#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/DiskPort.h"

namespace brimly {

// The figures of statvfs(3) that the disk reading needs.
struct FileSystemStats {
  std::uint64_t fragmentSize = 0;     // f_frsize: the unit of the block counts
  std::uint64_t blockSize = 0;        // f_bsize: the unit only when f_frsize is 0
  std::uint64_t blocks = 0;           // f_blocks
  std::uint64_t freeBlocks = 0;       // f_bfree, including blocks reserved for root
  std::uint64_t availableBlocks = 0;  // f_bavail, free to unprivileged users

  bool operator==(const FileSystemStats&) const = default;
};

// Where file-system statistics come from: statvfs in production, a fake in tests.
class FileSystemStatsSource {
 public:
  virtual ~FileSystemStatsSource() = default;
  // The statistics of the file system holding `path`; nothing when the call fails.
  virtual std::optional<FileSystemStats> statistics(const std::string& path) const = 0;
};

// statvfs(3).
class PosixFileSystemStats : public FileSystemStatsSource {
 public:
  std::optional<FileSystemStats> statistics(const std::string& path) const override;
};

// The disk capacities of a file system as `df` counts them: total = f_blocks × unit, available =
// f_bavail × unit and used = (f_blocks − f_bfree) × unit, so that the free space held back for
// root is neither used nor available. Available is capped at total (btrfs estimates can exceed
// it); a product that does not fit in 64 signed bits, or a unit of 0, leaves that figure out.
DiskCapacities diskCapacitiesFromStats(const FileSystemStats& stats);

}  // namespace brimly
