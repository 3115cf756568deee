#include "platform/linux/PowerSupplyDirectory.h"

#include <cerrno>

#include "platform/linux/SysfsText.h"
#include "platform/linux/Uevent.h"

namespace brimly {
namespace {

constexpr const char* kClassDirectory = "sys/class/power_supply";

// The attributes the mapping reads, for drivers whose uevent cannot be read.
constexpr const char* kAttributes[] = {"type",        "scope",
                                       "present",     "online",
                                       "status",      "capacity",
                                       "voltage_now", "current_now",
                                       "power_now",   "energy_now",
                                       "energy_full", "charge_now",
                                       "charge_full", "charge_full_design",
                                       "cycle_count"};

}  // namespace

std::vector<std::string> listPowerSupplies(const FileSystemView& files) {
  return files.list(kClassDirectory);
}

PowerSupplyRecord readPowerSupply(const FileSystemView& files, const std::string& name) {
  PowerSupplyRecord record;
  record.path = joinPath(kClassDirectory, name);
  record.supply.name = name;
  const FileRead uevent = files.read(joinPath(record.path, "uevent"));
  if (uevent.ok()) {
    record.ueventLines = parseUeventLines(uevent.text);
    record.supply.properties = parsePowerSupplyUevent(uevent.text);
  }
  // Every device in sysfs has a uevent file: without one, the supply itself has gone.
  record.gone = uevent.error == ENOENT;
  record.fromUevent = !record.supply.properties.empty();
  if (!record.fromUevent) {
    for (const char* attribute : kAttributes) {
      const FileRead value = files.read(joinPath(record.path, attribute));
      if (value.ok()) record.supply.properties.set(attribute, sysfsString(value.text));
    }
  }
  return record;
}

std::vector<PowerSupplyRecord> readPowerSupplies(const FileSystemView& files) {
  std::vector<PowerSupplyRecord> records;
  for (const std::string& name : listPowerSupplies(files))
    records.push_back(readPowerSupply(files, name));
  return records;
}

}  // namespace brimly
