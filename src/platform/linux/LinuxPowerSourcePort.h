#pragma once

#include <memory>

#include "platform/PowerSourcePort.h"
#include "platform/linux/FileSystemView.h"

namespace brimly {

// Batteries and mains from sys/class/power_supply, mapped onto power-source descriptions (see
// describePowerSupplies for the mapping and its handling of driver differences).
class LinuxPowerSourcePort : public PowerSourcePort {
 public:
  explicit LinuxPowerSourcePort(std::shared_ptr<const FileSystemView> files);

  // An empty list when the machine has no counted supply (a VM, most desktops).
  std::optional<std::vector<std::optional<PropertyDict>>> readPowerSourceDescriptions() override;
  // The first battery's voltage (mV), signed current (mA), cycle count and, for drivers that
  // count charge, its capacities in mAh; nothing without a battery.
  std::optional<PropertyDict> readSmartBatteryProperties() override;

 private:
  std::shared_ptr<const FileSystemView> files_;
};

}  // namespace brimly
