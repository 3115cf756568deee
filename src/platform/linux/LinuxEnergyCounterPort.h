#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/EnergyCounterPort.h"
#include "platform/linux/FileSystemView.h"

namespace brimly {

// Package energy from the powercap RAPL counters, in microjoules, one counter per counted zone
// (see scanRaplZones), each wrapping at the zone's max_energy_range_uj. Since 2020 kernels let
// only root read energy_uj, so for ordinary users the counters are unavailable.
class LinuxEnergyCounterPort : public EnergyCounterPort {
 public:
  // Finds the counted zones and keeps those whose counter can be read now.
  explicit LinuxEnergyCounterPort(std::shared_ptr<const FileSystemView> files);

  bool isAvailable() const override { return !counters_.empty(); }
  // Nothing when unavailable or when any counter fails to read (a partial sum would look like a
  // drop in power).
  std::optional<std::vector<EnergyCounter>> readCounters() override;
  double joulesPerUnit() const override { return 1e-6; }

 private:
  struct Counter {
    std::string energyPath;
    std::string channel;
    std::int64_t wrapsAt = 0;
  };

  std::shared_ptr<const FileSystemView> files_;
  std::vector<Counter> counters_;
};

}  // namespace brimly
