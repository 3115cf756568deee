#include "platform/linux/RaplZones.h"

#include <algorithm>

#include "platform/linux/SysfsText.h"

namespace brimly {
namespace {

constexpr std::string_view kPrefix = "intel-rapl:";

std::optional<std::string> readName(const FileSystemView& files, const std::string& path) {
  const FileRead read = files.read(path);
  if (!read.ok()) return std::nullopt;
  std::string text = sysfsString(read.text);
  if (text.empty()) return std::nullopt;
  return text;
}

}  // namespace

std::vector<RaplZone> scanRaplZones(const FileSystemView& files) {
  constexpr const char* kDirectory = "sys/class/powercap";
  std::vector<RaplZone> zones;
  for (const std::string& entry : files.list(kDirectory)) {
    if (entry.size() <= kPrefix.size() || entry.compare(0, kPrefix.size(), kPrefix) != 0) continue;
    RaplZone zone;
    zone.zone = entry;
    zone.path = joinPath(kDirectory, entry);
    zone.name = readName(files, joinPath(zone.path, "name"));
    zone.topLevel = std::count(entry.begin(), entry.end(), ':') == 1;
    const FileRead range = files.read(joinPath(zone.path, "max_energy_range_uj"));
    if (range.ok()) zone.maxEnergyRangeMicrojoules = parseSysfsInteger(range.text);
    zones.push_back(std::move(zone));
  }
  for (RaplZone& zone : zones) {
    if (!zone.name) continue;
    if (zone.topLevel && zone.name->rfind("package-", 0) == 0) {
      zone.channel = *zone.name + " Energy";
    } else if (!zone.topLevel && *zone.name == "dram") {
      // Named after its package: "intel-rapl:0:2" belongs to "intel-rapl:0".
      const std::string parent = zone.zone.substr(0, zone.zone.rfind(':'));
      const auto package = std::find_if(
          zones.begin(), zones.end(), [&](const RaplZone& other) { return other.zone == parent; });
      const std::string owner = package != zones.end() && package->name ? *package->name : parent;
      zone.channel = owner + " dram Energy";
    }
  }
  return zones;
}

}  // namespace brimly
