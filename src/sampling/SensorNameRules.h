#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/TemperatureSensorPort.h"
#include "sampling/SensorReading.h"

namespace brimly {

// What a sensor's name says about it when looking for the processor temperature.
enum class SensorRole {
  processor,  // measures a processor cluster or package: counts first
  other,      // some other part of the machine: counts only when no processor sensor reads
  excluded,   // never counts (calibration, battery gauge, storage, or a duplicate with an offset)
};

// A Linux sensor name split into its source and label. The platform layer names hwmon sensors
// "<chip> <label>" (the label being "tempN" when the driver gives none) and thermal zones
// "<type> (thermal_zoneN)".
struct LinuxSensorName {
  std::string chip;   // hwmon chip name or thermal-zone type, as listed
  std::string label;  // empty for thermal zones
  bool thermalZone = false;

  bool operator==(const LinuxSensorName&) const = default;
};

// The name rules for both naming conventions.
class SensorNameRules {
 public:
  // Readings strictly between these bounds are plausible; anything else is a "no value" marker or
  // a broken sensor.
  static constexpr double minimumPlausible = 5.0;
  static constexpr double maximumPlausible = 130.0;
  static bool isPlausible(double celsius);

  // The role of every reading, in order. On Linux a "Tctl" figure is excluded when the same chip
  // also lists "Tdie": on those processors Tctl carries a fixed offset above the die temperature.
  static std::vector<SensorRole> roles(const std::vector<SensorReading>& readings,
                                       SensorNaming naming);

  // Apple-silicon HID sensor names, case-sensitive, first matching rule decides: "tcal",
  // "gas gauge" and "NAND" are excluded; "tdie", "tdev", a leading "PMU TP" or "PMU tp", "pACC",
  // "eACC" and "CPU" mark a processor sensor; anything else is another sensor.
  static SensorRole appleSiliconRole(std::string_view name);

  // Linux hwmon and thermal-zone names (without the Tctl/Tdie rule, which needs the other
  // readings). Processor sources: Intel coretemp and x86_pkg_temp/TCPU zones, AMD k10temp and
  // zenpower, VIA via_cputemp, and the Arm SoC zones (cpu…, bigcore…, littlecore…, soc_thermal,
  // scpi_sensors; a zone type's dashes read as underscores, as in its hwmon twin). Excluded:
  // drives (nvme, drivetemp), discrete GPUs, Wi-Fi, chipset, batteries, USB-C ports and the
  // INT3400 control zone. Everything else (acpitz, thinkpad, …) is another sensor.
  static SensorRole linuxRole(std::string_view name);

  static LinuxSensorName parseLinuxName(std::string_view name);
};

}  // namespace brimly
