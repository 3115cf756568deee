#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/PropertyValue.h"
#include "platform/linux/Uevent.h"

namespace brimly {

// One entry of /sys/class/power_supply with its properties.
struct PowerSupply {
  std::string name;
  PowerSupplyProperties properties;
};

// What the power-source port hands out: the descriptions in the order the portable reading walks
// them, and the first battery's own properties.
struct PowerSupplySnapshot {
  std::vector<std::optional<PropertyDict>> descriptions;
  std::optional<PropertyDict> smartBattery;
};

// Maps the kernel's power supplies onto power-source descriptions.
//
// Which supplies count: those whose scope is not "Device" (a wireless mouse's battery is not the
// computer's). Batteries are type "Battery" with present ≠ 0 (a missing "present" counts as
// present); line supplies are the other types that report "online" (Mains, USB chargers).
//
// On mains: any line supply online; a machine without line supplies is taken to be on mains
// when a battery says Charging, Full or Not charging.
//
// Current: drivers disagree on the sign (ACPI reports a magnitude both ways, fuel gauges a
// signed value), so the magnitude of current_now is used (µA → mA), or, when a driver reports
// power instead, |power_now| / voltage_now; the sign comes from the battery status: negative
// while Discharging, positive while Charging, otherwise positive on mains and negative on
// battery. "Voltage" is voltage_now in mV. The charge level is capacity / 100 when the driver
// gives a percentage, else energy_now / energy_full, else charge_now / charge_full.
//
// Order: with two or more batteries a combined description comes first (summed power at the
// first battery's voltage; charge level over the summed energies or charges), then one
// description per battery, then one per line supply. A machine with no counted supply gives an
// empty list; one with only line supplies describes them (on mains, not charging).
PowerSupplySnapshot describePowerSupplies(const std::vector<PowerSupply>& supplies);

}  // namespace brimly
