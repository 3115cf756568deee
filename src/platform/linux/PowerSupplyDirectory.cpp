#include "platform/linux/PowerSupplyDirectory.h"

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

std::vector<PowerSupplyRecord> readPowerSupplies(const FileSystemView& files) {
  std::vector<PowerSupplyRecord> records;
  for (const std::string& name : files.list(kClassDirectory)) {
    PowerSupplyRecord record;
    record.path = joinPath(kClassDirectory, name);
    record.supply.name = name;
    const FileRead uevent = files.read(joinPath(record.path, "uevent"));
    if (uevent.ok()) {
      record.ueventLines = parseUeventLines(uevent.text);
      record.supply.properties = parsePowerSupplyUevent(uevent.text);
    }
    record.fromUevent = !record.supply.properties.empty();
    if (!record.fromUevent) {
      for (const char* attribute : kAttributes) {
        const FileRead value = files.read(joinPath(record.path, attribute));
        if (value.ok()) record.supply.properties.set(attribute, sysfsString(value.text));
      }
    }
    records.push_back(std::move(record));
  }
  return records;
}

}  // namespace brimly
