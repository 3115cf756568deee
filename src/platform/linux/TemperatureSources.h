#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/FileSystemView.h"

namespace brimly {

// One tempN_input of an hwmon chip.
struct HwmonTemperatureInput {
  std::string sensor;                // "temp3"
  std::string inputPath;             // "sys/class/hwmon/hwmon2/temp3_input"
  std::optional<std::string> label;  // tempN_label, when present and not empty
};

// Why the inputs of a chip are not read.
enum class HwmonSkip {
  none,
  deviceAsleep,  // its device is runtime-suspended (a sleeping dGPU): a read would wake it
  costlyRead,    // every read sends a command to the device (nvme, drivetemp) or its firmware
                 // (iwlwifi), and none of them is a processor sensor
};

// One hwmon chip (sys/class/hwmon/hwmonN).
struct HwmonChip {
  std::string path;                 // "sys/class/hwmon/hwmon2"
  std::string attributeDirectory;   // where its files live: the chip directory, or its device/
                                    // directory on old kernels
  std::optional<std::string> name;  // the chip's name file
  std::string runtimeStatus;        // of its device; empty when none
  HwmonSkip skip = HwmonSkip::none;
  std::vector<HwmonTemperatureInput> inputs;  // by sensor number
};

// One thermal zone (sys/class/thermal/thermal_zoneN).
struct ThermalZone {
  std::string zone;  // "thermal_zone3"
  std::string path;  // "sys/class/thermal/thermal_zone3"
  std::optional<std::string> type;
  bool costlyRead = false;  // an iwlwifi zone: each read asks the Wi-Fi firmware
};

// Every hwmon chip in natural order, with its temperature inputs found by listing its directory
// (numbering is sparse: k10temp has temp1 and temp3 but no temp2). Labels and names are read;
// inputs are not.
std::vector<HwmonChip> scanHwmonChips(const FileSystemView& files);

// Reads again what may change about a listed chip between two listings: whether its device
// sleeps. A chip whose device has no runtime status, or whose inputs are never read because each
// read is costly, reads nothing.
void refreshHwmonChip(const FileSystemView& files, HwmonChip& chip);

// Every thermal zone in natural order with its type; temperatures are not read.
std::vector<ThermalZone> scanThermalZones(const FileSystemView& files);

// Sensor names as the processor-temperature rule expects them:
//   hwmon:   "<chip name> <label>", or "<chip name> tempN" when unlabelled ("coretemp Package id
//            0", "k10temp Tctl", "acpitz temp1"); nothing when the chip has no name;
//   thermal: "<type> (thermal_zoneN)" ("x86_pkg_temp (thermal_zone3)"); nothing without a type.
std::optional<std::string> hwmonSensorName(const HwmonChip& chip,
                                           const HwmonTemperatureInput& input);
std::optional<std::string> thermalZoneSensorName(const ThermalZone& zone);

// A millidegree reading in degrees Celsius; nothing when the text is not an integer.
std::optional<double> celsiusFromMillidegrees(std::string_view text);

}  // namespace brimly
