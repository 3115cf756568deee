#pragma once

#include <cstdint>
#include <optional>

namespace brimly {

// Page counts of the virtual-memory statistics. Used memory is active + wired + compressed pages.
// A system without these page classes reports its own "used" figure as active pages and leaves
// wired and compressed at zero.
struct VmStatistics {
  std::uint64_t activePages = 0;
  std::uint64_t wiredPages = 0;
  std::uint64_t compressedPages = 0;
  std::uint64_t inactivePages = 0;
  std::uint64_t freePages = 0;

  bool operator==(const VmStatistics&) const = default;
};

struct SwapUsage {
  std::uint64_t totalBytes = 0;
  std::uint64_t usedBytes = 0;

  bool operator==(const SwapUsage&) const = default;
};

// Everything memory-related that one sample needs, fetched together so that a system serving all
// of it from one file reads that file once.
struct MemoryReading {
  std::optional<VmStatistics> vm;     // nothing when the statistics call fails
  std::uint64_t pageSize = 0;         // bytes per page of `vm`
  std::uint64_t physicalBytes = 0;    // installed memory
  std::optional<SwapUsage> swap;      // nothing when the swap query fails
};

class MemoryPort {
 public:
  virtual ~MemoryPort() = default;
  virtual MemoryReading readMemory() = 0;
};

}  // namespace brimly
