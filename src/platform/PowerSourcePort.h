#pragma once

#include <optional>
#include <vector>

#include "platform/PropertyValue.h"

namespace brimly {

// The power-source list and the smart-battery registry entry. Descriptions use the keys
// "Power Source State" ("AC Power" on mains), "Is Charging", "Current" and "InstantAmperage"
// (mA), "Voltage" (mV), "Current Capacity" and "Max Capacity".
class PowerSourcePort {
 public:
  virtual ~PowerSourcePort() = default;
  // Nothing when there is no snapshot or no list; otherwise one entry per source, in the system's
  // order, each nothing when its description is not a string-keyed dictionary.
  virtual std::optional<std::vector<std::optional<PropertyDict>>> readPowerSourceDescriptions() = 0;
  // The battery registry entry's properties ("Voltage" in mV, "Amperage", …); nothing when the
  // machine has no battery service.
  virtual std::optional<PropertyDict> readSmartBatteryProperties() = 0;
  // What the sampler reads every second: the entry's "Voltage" (mV), where a backend can read it
  // alone; other properties may come along. Nothing when the machine has no battery service. By
  // default the whole entry.
  virtual std::optional<PropertyDict> readSmartBatteryVoltage() {
    return readSmartBatteryProperties();
  }
};

}  // namespace brimly
