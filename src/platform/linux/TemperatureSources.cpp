#include "platform/linux/TemperatureSources.h"

#include <algorithm>

#include "platform/linux/GpuDevices.h"
#include "platform/linux/NaturalOrder.h"
#include "platform/linux/SysfsText.h"

namespace brimly {
namespace {

std::optional<std::string> readName(const FileSystemView& files, const std::string& path) {
  const FileRead read = files.read(path);
  if (!read.ok()) return std::nullopt;
  std::string text = sysfsString(read.text);
  if (text.empty()) return std::nullopt;
  return text;
}

bool startsWith(std::string_view text, std::string_view prefix) {
  return text.substr(0, prefix.size()) == prefix;
}

bool isCostlyChip(std::string_view name) {
  return name == "nvme" || name == "drivetemp" || startsWith(name, "iwlwifi");
}

// "temp12_input" gives "temp12"; anything else gives nothing.
std::optional<std::string> sensorOfInput(std::string_view file) {
  constexpr std::string_view kPrefix = "temp";
  constexpr std::string_view kSuffix = "_input";
  if (file.size() <= kPrefix.size() + kSuffix.size()) return std::nullopt;
  if (!startsWith(file, kPrefix) || file.substr(file.size() - kSuffix.size()) != kSuffix) {
    return std::nullopt;
  }
  const std::string_view digits =
      file.substr(kPrefix.size(), file.size() - kPrefix.size() - kSuffix.size());
  if (!std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; })) {
    return std::nullopt;
  }
  return std::string(file.substr(0, file.size() - kSuffix.size()));
}

std::vector<HwmonTemperatureInput> inputsIn(const FileSystemView& files,
                                            const std::string& directory) {
  std::vector<HwmonTemperatureInput> inputs;
  for (const std::string& file : files.list(directory)) {
    const std::optional<std::string> sensor = sensorOfInput(file);
    if (!sensor) continue;
    HwmonTemperatureInput input;
    input.sensor = *sensor;
    input.inputPath = joinPath(directory, file);
    input.label = readName(files, joinPath(directory, *sensor + "_label"));
    inputs.push_back(std::move(input));
  }
  return inputs;
}

std::string runtimeStatusOf(const FileSystemView& files, const HwmonChip& chip) {
  const FileRead status = files.read(joinPath(chip.path, "device/power/runtime_status"));
  return status.ok() ? sysfsString(status.text) : std::string();
}

HwmonSkip skipOf(const HwmonChip& chip) {
  if (isAsleep(chip.runtimeStatus)) return HwmonSkip::deviceAsleep;
  if (chip.name && isCostlyChip(*chip.name)) return HwmonSkip::costlyRead;
  return HwmonSkip::none;
}

}  // namespace

std::vector<HwmonChip> scanHwmonChips(const FileSystemView& files) {
  constexpr const char* kDirectory = "sys/class/hwmon";
  std::vector<HwmonChip> chips;
  for (const std::string& entry : files.list(kDirectory)) {
    HwmonChip chip;
    chip.path = joinPath(kDirectory, entry);
    chip.attributeDirectory = chip.path;
    chip.name = readName(files, joinPath(chip.path, "name"));
    chip.inputs = inputsIn(files, chip.path);
    const std::string device = joinPath(chip.path, "device");
    if (chip.inputs.empty()) {
      // Older kernels kept the attributes on the device rather than on the hwmon entry.
      std::vector<HwmonTemperatureInput> deviceInputs = inputsIn(files, device);
      if (!deviceInputs.empty()) {
        chip.attributeDirectory = device;
        chip.inputs = std::move(deviceInputs);
        if (!chip.name) chip.name = readName(files, joinPath(device, "name"));
      }
    }
    chip.runtimeStatus = runtimeStatusOf(files, chip);
    chip.skip = skipOf(chip);
    chips.push_back(std::move(chip));
  }
  return chips;
}

void refreshHwmonChip(const FileSystemView& files, HwmonChip& chip) {
  if (chip.runtimeStatus.empty() || (chip.name && isCostlyChip(*chip.name))) return;
  chip.runtimeStatus = runtimeStatusOf(files, chip);
  chip.skip = skipOf(chip);
}

std::vector<ThermalZone> scanThermalZones(const FileSystemView& files) {
  constexpr const char* kDirectory = "sys/class/thermal";
  std::vector<ThermalZone> zones;
  for (const std::string& entry : files.list(kDirectory)) {
    if (!startsWith(entry, "thermal_zone")) continue;  // cooling_deviceN are not sensors
    ThermalZone zone;
    zone.zone = entry;
    zone.path = joinPath(kDirectory, entry);
    zone.type = readName(files, joinPath(zone.path, "type"));
    zone.costlyRead = zone.type && startsWith(*zone.type, "iwlwifi");
    zones.push_back(std::move(zone));
  }
  return zones;
}

std::optional<std::string> hwmonSensorName(const HwmonChip& chip,
                                           const HwmonTemperatureInput& input) {
  if (!chip.name) return std::nullopt;
  return *chip.name + " " + (input.label ? *input.label : input.sensor);
}

std::optional<std::string> thermalZoneSensorName(const ThermalZone& zone) {
  if (!zone.type) return std::nullopt;
  return *zone.type + " (" + zone.zone + ")";
}

std::optional<double> celsiusFromMillidegrees(std::string_view text) {
  const std::optional<std::int64_t> millidegrees = parseSysfsInteger(text);
  if (!millidegrees) return std::nullopt;
  return static_cast<double>(*millidegrees) / 1000.0;
}

}  // namespace brimly
