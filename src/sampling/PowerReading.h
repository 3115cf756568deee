#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "platform/PropertyValue.h"
#include "sampling/PowerState.h"

namespace brimly {

// What the power-source list says about the battery: the signed flow in watts (negative while
// discharging, positive while charging, 0 otherwise), the state, and the charge in percent.
struct PowerReading {
  double watts = 0.0;
  PowerState state;                            // unknown
  std::optional<std::int64_t> batteryPercent;  // absent unless the description has both capacities

  bool operator==(const PowerReading&) const = default;

  // Only the first source whose description is a dictionary counts; a second battery or an
  // uninterruptible power supply further down the list is ignored. No snapshot, no list, an empty
  // list or no usable description give (0.0, unknown) without a percent. `readBatteryVoltageMV` is
  // asked once, before the list is walked, and only when the list has entries.
  static PowerReading fromSources(
      const std::optional<std::vector<std::optional<PropertyDict>>>& sources,
      const std::function<std::int64_t()>& readBatteryVoltageMV);

  // Reads one source description. The registry voltage is used unless the description carries a
  // "Voltage" above 0.
  static PowerReading fromDescription(const PropertyDict& description,
                                      std::int64_t registryVoltageMV);

  // round(Current Capacity / Max Capacity × 100), halves away from zero, not clamped (a pack
  // reporting more than its maximum shows more than 100). Nothing when either capacity is not an
  // integer, the maximum is below 1, or the result does not fit a 64-bit integer.
  static std::optional<std::int64_t> batteryPercentFrom(const PropertyDict& description);

  // The battery registry entry's "Voltage" in millivolts; 0 when there is no entry, no integer
  // "Voltage" or one below 1.
  static std::int64_t batteryVoltageMV(const std::optional<PropertyDict>& smartBattery);

  // Charging below this many watts (or exactly at it) counts as mains power without charging.
  static constexpr double chargingThresholdWatts = 0.5;
};

}  // namespace brimly
