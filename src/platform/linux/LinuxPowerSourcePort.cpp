#include "platform/linux/LinuxPowerSourcePort.h"

#include <utility>

#include "platform/linux/PowerSupplyDirectory.h"

namespace brimly {
namespace {

PowerSupplySnapshot snapshotOf(const FileSystemView& files) {
  std::vector<PowerSupply> supplies;
  for (PowerSupplyRecord& record : readPowerSupplies(files)) {
    supplies.push_back(std::move(record.supply));
  }
  return describePowerSupplies(supplies);
}

}  // namespace

LinuxPowerSourcePort::LinuxPowerSourcePort(std::shared_ptr<const FileSystemView> files)
    : files_(std::move(files)) {}

std::optional<std::vector<std::optional<PropertyDict>>>
LinuxPowerSourcePort::readPowerSourceDescriptions() {
  return snapshotOf(*files_).descriptions;
}

std::optional<PropertyDict> LinuxPowerSourcePort::readSmartBatteryProperties() {
  return snapshotOf(*files_).smartBattery;
}

}  // namespace brimly
