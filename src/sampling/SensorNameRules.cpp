#include "sampling/SensorNameRules.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <set>

namespace brimly {

namespace {

bool contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

bool containsIgnoringCase(std::string_view text, std::string_view part) {
  const auto it =
      std::search(text.begin(), text.end(), part.begin(), part.end(), [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) ==
               std::tolower(static_cast<unsigned char>(b));
      });
  return it != text.end();
}

// Thermal-zone types use dashes where the hwmon twin of the same zone uses underscores.
std::string normalisedChip(std::string_view chip) {
  std::string name(chip);
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

constexpr std::array<std::string_view, 9> kProcessorChips = {
    "coretemp",     "k10temp",      "zenpower", "via_cputemp", "soc_thermal",
    "scpi_sensors", "x86_pkg_temp", "TCPU",     "TCPU_PCI"};
constexpr std::array<std::string_view, 3> kProcessorChipPrefixes = {"cpu", "bigcore", "littlecore"};
constexpr std::array<std::string_view, 10> kExcludedChipPrefixes = {
    "nvme",    "drivetemp", "amdgpu",  "radeon",          "nouveau",
    "iwlwifi", "pch_",      "INT3400", "ucsi_source_psy", "BAT"};

constexpr std::string_view kTctl = "Tctl";
constexpr std::string_view kTdie = "Tdie";

}  // namespace

bool SensorNameRules::isPlausible(double celsius) {
  return celsius > minimumPlausible && celsius < maximumPlausible;
}

SensorRole SensorNameRules::appleSiliconRole(std::string_view name) {
  if (contains(name, "tcal")) return SensorRole::excluded;
  if (contains(name, "gas gauge")) return SensorRole::excluded;
  if (contains(name, "NAND")) return SensorRole::excluded;
  if (contains(name, "tdie")) return SensorRole::processor;
  if (contains(name, "tdev")) return SensorRole::processor;
  if (name.starts_with("PMU TP")) return SensorRole::processor;
  if (name.starts_with("PMU tp")) return SensorRole::processor;
  if (contains(name, "pACC")) return SensorRole::processor;
  if (contains(name, "eACC")) return SensorRole::processor;
  if (contains(name, "CPU")) return SensorRole::processor;
  return SensorRole::other;
}

LinuxSensorName SensorNameRules::parseLinuxName(std::string_view name) {
  constexpr std::string_view zoneMarker = " (thermal_zone";
  const auto zoneAt = name.rfind(zoneMarker);
  if (zoneAt != std::string_view::npos && name.ends_with(')')) {
    return LinuxSensorName{std::string(name.substr(0, zoneAt)), {}, true};
  }
  const auto space = name.find(' ');
  if (space == std::string_view::npos) return LinuxSensorName{std::string(name), {}, false};
  return LinuxSensorName{std::string(name.substr(0, space)), std::string(name.substr(space + 1)),
                         false};
}

SensorRole SensorNameRules::linuxRole(std::string_view name) {
  const LinuxSensorName parsed = parseLinuxName(name);
  const std::string chip = normalisedChip(parsed.chip);
  if (chip.empty()) return SensorRole::other;
  for (const std::string_view prefix : kExcludedChipPrefixes) {
    if (chip.starts_with(prefix)) return SensorRole::excluded;
  }
  if (containsIgnoringCase(chip, "battery")) return SensorRole::excluded;
  for (const std::string_view known : kProcessorChips) {
    if (chip == known) return SensorRole::processor;
  }
  for (const std::string_view prefix : kProcessorChipPrefixes) {
    if (chip.starts_with(prefix)) return SensorRole::processor;
  }
  return SensorRole::other;
}

std::vector<SensorRole> SensorNameRules::roles(const std::vector<SensorReading>& readings,
                                               SensorNaming naming) {
  std::vector<SensorRole> result;
  result.reserve(readings.size());
  if (naming == SensorNaming::appleSilicon) {
    for (const auto& reading : readings)
      result.push_back(appleSiliconRole(reading.name));
    return result;
  }
  std::set<std::string> chipsWithTdie;
  for (const auto& reading : readings) {
    const LinuxSensorName parsed = parseLinuxName(reading.name);
    if (!parsed.thermalZone && parsed.label == kTdie) chipsWithTdie.insert(parsed.chip);
  }
  for (const auto& reading : readings) {
    const LinuxSensorName parsed = parseLinuxName(reading.name);
    if (!parsed.thermalZone && parsed.label == kTctl && chipsWithTdie.count(parsed.chip) > 0) {
      result.push_back(SensorRole::excluded);
    } else {
      result.push_back(linuxRole(reading.name));
    }
  }
  return result;
}

}  // namespace brimly
