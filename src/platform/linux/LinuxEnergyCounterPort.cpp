#include "platform/linux/LinuxEnergyCounterPort.h"

#include <utility>

#include "platform/linux/RaplZones.h"
#include "platform/linux/SysfsText.h"

namespace brimly {
namespace {

std::optional<std::int64_t> readEnergy(const FileSystemView& files, const std::string& path) {
  const FileRead read = files.read(path);
  if (!read.ok()) return std::nullopt;
  const std::optional<std::int64_t> value = parseSysfsInteger(read.text);
  if (!value || *value < 0) return std::nullopt;
  return value;
}

}  // namespace

LinuxEnergyCounterPort::LinuxEnergyCounterPort(std::shared_ptr<const FileSystemView> files)
    : files_(std::move(files)) {
  for (const RaplZone& zone : scanRaplZones(*files_)) {
    if (zone.channel.empty()) continue;
    Counter counter;
    counter.energyPath = joinPath(zone.path, "energy_uj");
    counter.channel = zone.channel;
    const std::int64_t range = zone.maxEnergyRangeMicrojoules.value_or(0);
    counter.wrapsAt = range > 0 ? range : 0;
    if (readEnergy(*files_, counter.energyPath)) counters_.push_back(std::move(counter));
  }
}

std::optional<std::vector<EnergyCounter>> LinuxEnergyCounterPort::readCounters() {
  if (counters_.empty()) return std::nullopt;
  std::vector<EnergyCounter> readings;
  readings.reserve(counters_.size());
  for (const Counter& counter : counters_) {
    const std::optional<std::int64_t> value = readEnergy(*files_, counter.energyPath);
    if (!value) return std::nullopt;
    readings.push_back({counter.channel, *value, counter.wrapsAt});
  }
  return readings;
}

}  // namespace brimly
