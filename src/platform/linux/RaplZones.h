#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/FileSystemView.h"

namespace brimly {

// One powercap RAPL zone (sys/class/powercap/intel-rapl:N or a sub-zone intel-rapl:N:M).
struct RaplZone {
  std::string zone;                 // "intel-rapl:0"
  std::string path;                 // "sys/class/powercap/intel-rapl:0"
  std::optional<std::string> name;  // "package-0", "core", "uncore", "dram", "psys"
  bool topLevel = false;
  std::optional<std::int64_t> maxEnergyRangeMicrojoules;
  // The energy channel this zone contributes, or empty when it is not counted.
  std::string channel;
};

// Every zone of the "intel-rapl" control type (which also serves AMD processors) in natural
// order. Counted, so that nothing is summed twice: each top-level package zone ("package-0
// Energy") and each "dram" sub-zone ("package-0 dram Energy"; memory is outside the package).
// Not counted: core and uncore (parts of the package), psys (the whole platform, which already
// holds the package) and the intel-rapl-mmio zones (a second view of the same package counter).
// Energy counters themselves are not read.
std::vector<RaplZone> scanRaplZones(const FileSystemView& files);

}  // namespace brimly
