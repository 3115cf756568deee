#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/PowerSourcePort.h"
#include "platform/linux/FileSystemView.h"
#include "platform/linux/ListingRefresh.h"
#include "platform/linux/PowerSupplyMapping.h"

namespace brimly {

// Batteries and mains from sys/class/power_supply, mapped onto power-source descriptions (see
// describePowerSupplies for the mapping and its handling of driver differences). Each reading
// reads every supply's properties afresh; which supplies there are is listed as `ListingRefresh`
// says, so a battery plugged in shows within its interval.
class LinuxPowerSourcePort : public PowerSourcePort {
 public:
  // `clock` paces the listing and must outlive the port.
  LinuxPowerSourcePort(std::shared_ptr<const FileSystemView> files, const MonotonicClock& clock);

  // An empty list when the machine has no counted supply (a VM, most desktops).
  std::optional<std::vector<std::optional<PropertyDict>>> readPowerSourceDescriptions() override;
  // The first battery's voltage (mV), signed current (mA), cycle count and, for drivers that
  // count charge, its capacities in mAh; nothing without a battery.
  std::optional<PropertyDict> readSmartBatteryProperties() override;

 private:
  PowerSupplySnapshot snapshot();

  std::shared_ptr<const FileSystemView> files_;
  ListingRefresh listing_;
  std::vector<std::string> names_;
};

}  // namespace brimly
