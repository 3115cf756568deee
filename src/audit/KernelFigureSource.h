#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brimly {

// /proc/meminfo as the report quotes it.
struct MeminfoFigures {
  std::string path;   // "/proc/meminfo"
  std::string error;  // why the file could not be read; empty when it was
  // The fields that explain the memory figure, in KiB, each nothing when the file lacks it.
  std::vector<std::pair<std::string, std::optional<std::uint64_t>>> fieldsKiB;
};

// The root file system's figures as statvfs("/") gives them: block counts in units of
// `fragmentSize` bytes.
struct RootFilesystemFigures {
  std::uint64_t fragmentSize = 0;     // f_frsize (f_bsize where f_frsize is 0)
  std::uint64_t blocks = 0;           // f_blocks
  std::uint64_t freeBlocks = 0;       // f_bfree
  std::uint64_t availableBlocks = 0;  // f_bavail
  std::uint64_t blockSize = 0;        // f_bsize, the preferred I/O size

  bool operator==(const RootFilesystemFigures&) const = default;
};

// Why the package energy counters give no reading, as far as the kernel's files tell.
enum class EnergyCounterAccess {
  readable,      // the counters can be read
  noZones,       // no RAPL package zone under /sys/class/powercap
  notPermitted,  // the zones exist but their energy_uj files are root-only
};

// The raw kernel figures that the Linux report quotes beside Brimly's own numbers, so that a
// reader can see what each number was computed from and why a reading is missing. Each call
// reads the files afresh. Notes are plain sentences, one per device, file or library that was
// looked at and gave no figure (or was deliberately left unread).
class KernelFigureSource {
 public:
  virtual ~KernelFigureSource() = default;
  virtual MeminfoFigures meminfo() = 0;
  // statvfs("/"); nothing when the call fails.
  virtual std::optional<RootFilesystemFigures> rootFilesystem() = 0;
  // Each DRM card and the NVIDIA library, with what they gave for the GPU's load.
  virtual std::vector<std::string> gpuNotes() = 0;
  // hwmon chips and thermal zones left unread, and inputs whose read failed.
  virtual std::vector<std::string> temperatureNotes() = 0;
  virtual EnergyCounterAccess energyCounterAccess() = 0;
  // Each counted RAPL zone with what reading its counter gave.
  virtual std::vector<std::string> energyNotes() = 0;
};

}  // namespace brimly
