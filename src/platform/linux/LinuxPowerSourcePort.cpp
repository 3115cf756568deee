#include "platform/linux/LinuxPowerSourcePort.h"

#include <utility>

#include "platform/linux/PowerSupplyDirectory.h"

namespace brimly {

LinuxPowerSourcePort::LinuxPowerSourcePort(std::shared_ptr<const FileSystemView> files,
                                           const MonotonicClock& clock)
    : files_(std::move(files)), listing_(clock) {}

std::optional<std::vector<std::optional<PropertyDict>>>
LinuxPowerSourcePort::readPowerSourceDescriptions() {
  return snapshot().descriptions;
}

std::optional<PropertyDict> LinuxPowerSourcePort::readSmartBatteryProperties() {
  return snapshot().smartBattery;
}

PowerSupplySnapshot LinuxPowerSourcePort::snapshot() {
  if (listing_.due()) names_ = listPowerSupplies(*files_);
  std::vector<PowerSupply> supplies;
  supplies.reserve(names_.size());
  for (const std::string& name : names_) {
    PowerSupplyRecord record = readPowerSupply(*files_, name);
    if (record.gone) listing_.entryGone();
    supplies.push_back(std::move(record.supply));
  }
  return describePowerSupplies(supplies);
}

}  // namespace brimly
