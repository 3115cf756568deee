#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/linux/FileSystemView.h"
#include "platform/linux/PowerSupplyMapping.h"

namespace brimly {

// One entry of sys/class/power_supply as read: its properties and where they came from.
struct PowerSupplyRecord {
  std::string path;         // e.g. "sys/class/power_supply/BAT0"
  bool fromUevent = false;  // false: the uevent was empty or unreadable, files were read one by one
  bool gone = false;        // the supply was listed but has gone away since (its uevent is missing)
  std::vector<std::pair<std::string, std::string>> ueventLines;  // every raw line, as listed
  PowerSupply supply;
};

// The names of the power supplies, in natural order.
std::vector<std::string> listPowerSupplies(const FileSystemView& files);

// Reads the power supply `name`. Its uevent file is read once (one read gives every property, and
// on ACPI each attribute read would query the embedded controller); when it is empty or unreadable
// the attribute files that the mapping uses are read one by one instead.
PowerSupplyRecord readPowerSupply(const FileSystemView& files, const std::string& name);

// Reads every power supply in natural name order.
std::vector<PowerSupplyRecord> readPowerSupplies(const FileSystemView& files);

}  // namespace brimly
