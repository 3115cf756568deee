#pragma once

#include <cstdint>
#include <optional>

namespace brimly {

// Capacities of the start-up volume in bytes. "Available" is the space the user can still fill
// (purgeable space counted as free where the system knows it); either figure may be missing.
struct DiskCapacities {
  std::optional<std::int64_t> available;
  std::optional<std::int64_t> total;

  bool operator==(const DiskCapacities&) const = default;
};

class DiskPort {
 public:
  virtual ~DiskPort() = default;
  // Both capacities, asked together; nothing when the query fails.
  virtual std::optional<DiskCapacities> readDiskCapacities() = 0;
};

}  // namespace brimly
