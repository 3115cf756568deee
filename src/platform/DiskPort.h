#pragma once

#include <cstdint>
#include <optional>

namespace brimly {

// Capacities of the start-up volume in bytes. "Available" is the space the user can still fill
// (purgeable space counted as free where the system knows it); any figure may be missing.
// "Used" is given only where the system counts the space in use apart from what is available:
// on Linux it is the blocks that are not free, so that space held back (ext4's reserve for
// root) is neither used nor available, as `df` counts it. Without it, used is total − available.
struct DiskCapacities {
  std::optional<std::int64_t> available;
  std::optional<std::int64_t> total;
  std::optional<std::int64_t> used = std::nullopt;

  bool operator==(const DiskCapacities&) const = default;
};

class DiskPort {
 public:
  virtual ~DiskPort() = default;
  // Both capacities, asked together; nothing when the query fails.
  virtual std::optional<DiskCapacities> readDiskCapacities() = 0;
};

}  // namespace brimly
