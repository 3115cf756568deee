#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace brimly {

// One figure of a kernel file as the file names it ("MemAvailable").
struct KernelFigure {
  std::string name;
  std::uint64_t value = 0;

  bool operator==(const KernelFigure&) const = default;
};

// The root file system's figures as statvfs("/") gives them: block counts in units of
// `fragmentSize` bytes.
struct RootFilesystemFigures {
  std::uint64_t fragmentSize = 0;     // f_frsize
  std::uint64_t blocks = 0;           // f_blocks
  std::uint64_t freeBlocks = 0;       // f_bfree
  std::uint64_t availableBlocks = 0;  // f_bavail

  bool operator==(const RootFilesystemFigures&) const = default;
};

// Why the package energy counters give no reading, as far as the kernel's files tell.
enum class EnergyCounterAccess {
  readable,      // the counters can be read
  noZones,       // no RAPL package zone under /sys/class/powercap
  notPermitted,  // the zones exist but their energy_uj files are root-only
};

// The raw kernel figures that the Linux report quotes beside Brimly's own numbers, so that a
// reader can see what each number was computed from. Each call reads the files afresh.
class KernelFigureSource {
 public:
  virtual ~KernelFigureSource() = default;
  // The /proc/meminfo fields in kB (1024 bytes), in the file's order; nothing when unreadable.
  virtual std::optional<std::vector<KernelFigure>> meminfoKiB() = 0;
  // statvfs("/"); nothing when the call fails.
  virtual std::optional<RootFilesystemFigures> rootFilesystem() = 0;
  // Whether the RAPL package energy counters are there and readable.
  virtual EnergyCounterAccess energyCounterAccess() = 0;
};

}  // namespace brimly
