#include "platform/linux/LinuxDiagnostics.h"

#include <algorithm>
#include <system_error>

#include "platform/linux/Meminfo.h"
#include "platform/linux/PowerSupplyDirectory.h"
#include "platform/linux/RaplZones.h"
#include "platform/linux/SysfsText.h"
#include "platform/linux/TemperatureSources.h"

namespace brimly {
namespace {

constexpr const char* kMeminfoFields[] = {"MemTotal", "MemFree",      "MemAvailable", "Buffers",
                                          "Cached",   "SReclaimable", "Shmem",        "SwapTotal",
                                          "SwapFree", "Zswap",        "Zswapped"};

std::optional<std::string> firstLineStartingWith(std::string_view text, std::string_view start) {
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    if (line.substr(0, start.size()) == start) return std::string(line);
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return std::nullopt;
}

}  // namespace

std::string describeError(int error) {
  if (error == 0) return {};
  return std::generic_category().message(error);
}

LinuxDiagnostics::LinuxDiagnostics(LinuxSources sources) : sources_(std::move(sources)) {}

std::string LinuxDiagnostics::absolute(const std::string& path) const {
  const std::string root = sources_.root.empty() ? "/" : sources_.root;
  return joinPath(root, path);
}

CpuDiagnostics LinuxDiagnostics::cpu() const {
  CpuDiagnostics diagnostics;
  diagnostics.path = absolute("proc/stat");
  const FileRead stat = sources_.files->read("proc/stat");
  diagnostics.error = stat.error;
  if (!stat.ok()) return diagnostics;
  diagnostics.line = firstLineStartingWith(stat.text, "cpu ");
  if (!diagnostics.line) diagnostics.line = firstLineStartingWith(stat.text, "cpu\t");
  diagnostics.columns = parseProcStatCpu(stat.text);
  if (diagnostics.columns) diagnostics.ticks = cpuTicksFromProcStat(*diagnostics.columns);
  return diagnostics;
}

MemoryDiagnostics LinuxDiagnostics::memory() const {
  MemoryDiagnostics diagnostics;
  diagnostics.path = absolute("proc/meminfo");
  const FileRead file = sources_.files->read("proc/meminfo");
  diagnostics.error = file.error;
  const Meminfo meminfo = parseMeminfo(file.ok() ? file.text : std::string());
  for (const char* field : kMeminfoFields) {
    diagnostics.fieldsKiB.emplace_back(field, meminfo.find(field));
  }
  if (file.ok()) diagnostics.reading = memoryReadingFromMeminfo(meminfo);
  return diagnostics;
}

DiskDiagnostics LinuxDiagnostics::disk() const {
  DiskDiagnostics diagnostics;
  diagnostics.path = sources_.diskPath;
  if (sources_.fileSystemStats) {
    diagnostics.stats = sources_.fileSystemStats->statistics(sources_.diskPath);
  }
  if (diagnostics.stats) diagnostics.capacities = diskCapacitiesFromStats(*diagnostics.stats);
  return diagnostics;
}

PowerDiagnostics LinuxDiagnostics::power() const {
  PowerDiagnostics diagnostics;
  std::vector<PowerSupply> supplies;
  for (PowerSupplyRecord& record : readPowerSupplies(*sources_.files)) {
    PowerSupplyDiagnostics supply;
    supply.name = record.supply.name;
    supply.path = absolute(record.path);
    supply.fromUevent = record.fromUevent;
    supply.ueventLines = std::move(record.ueventLines);
    supply.properties = record.supply.properties.entries();
    diagnostics.supplies.push_back(std::move(supply));
    supplies.push_back(std::move(record.supply));
  }
  diagnostics.snapshot = describePowerSupplies(supplies);
  return diagnostics;
}

TemperatureDiagnostics LinuxDiagnostics::temperatures() const {
  TemperatureDiagnostics diagnostics;
  for (const HwmonChip& chip : scanHwmonChips(*sources_.files)) {
    HwmonChipDiagnostics entry;
    entry.path = absolute(chip.path);
    entry.attributeDirectory = absolute(chip.attributeDirectory);
    entry.name = chip.name;
    entry.runtimeStatus = chip.runtimeStatus;
    if (chip.skip == HwmonSkip::deviceAsleep) entry.skipReason = "device asleep";
    if (chip.skip == HwmonSkip::costlyRead) entry.skipReason = "each read costs a device command";
    for (const HwmonTemperatureInput& input : chip.inputs) {
      TemperatureInputDiagnostics reading;
      reading.path = absolute(input.inputPath);
      reading.label = input.label;
      reading.sensorName = hwmonSensorName(chip, input);
      if (chip.skip == HwmonSkip::none) {
        const FileRead file = sources_.files->read(input.inputPath);
        reading.read = true;
        reading.error = file.error;
        if (file.ok()) {
          reading.text = sysfsString(file.text);
          reading.celsius = celsiusFromMillidegrees(file.text);
        }
      }
      entry.inputs.push_back(std::move(reading));
    }
    diagnostics.chips.push_back(std::move(entry));
  }
  for (const ThermalZone& zone : scanThermalZones(*sources_.files)) {
    ThermalZoneDiagnostics entry;
    entry.path = absolute(zone.path);
    entry.type = zone.type;
    entry.sensorName = thermalZoneSensorName(zone);
    if (zone.costlyRead) {
      entry.skipReason = "each read asks the Wi-Fi firmware";
    } else {
      const FileRead file = sources_.files->read(joinPath(zone.path, "temp"));
      entry.error = file.error;
      if (file.ok()) {
        entry.text = sysfsString(file.text);
        entry.celsius = celsiusFromMillidegrees(file.text);
      }
    }
    diagnostics.zones.push_back(std::move(entry));
  }
  return diagnostics;
}

std::vector<RaplZoneDiagnostics> LinuxDiagnostics::raplZones() const {
  std::vector<RaplZoneDiagnostics> diagnostics;
  for (const RaplZone& zone : scanRaplZones(*sources_.files)) {
    RaplZoneDiagnostics entry;
    entry.path = absolute(zone.path);
    entry.name = zone.name;
    entry.topLevel = zone.topLevel;
    entry.channel = zone.channel;
    entry.maxEnergyRangeMicrojoules = zone.maxEnergyRangeMicrojoules;
    const FileRead energy = sources_.files->read(joinPath(zone.path, "energy_uj"));
    entry.error = energy.error;
    if (energy.ok()) entry.energyMicrojoules = parseSysfsInteger(energy.text);
    diagnostics.push_back(std::move(entry));
  }
  return diagnostics;
}

GpuDiagnostics LinuxDiagnostics::gpus() const {
  GpuDiagnostics diagnostics;
  for (const DrmCard& card : scanDrmCards(*sources_.files)) {
    DrmCardDiagnostics entry;
    entry.card = card;
    entry.path = absolute(joinPath("sys/class/drm", card.name));
    if (card.hasBusyPercent) {
      if (isAsleep(card.runtimeStatus)) {
        entry.skipReason = "device asleep";
      } else {
        const FileRead busy = sources_.files->read(joinPath(card.devicePath, "gpu_busy_percent"));
        entry.error = busy.error;
        if (busy.ok()) entry.busyPercent = parseSysfsInteger(busy.text);
      }
    }
    diagnostics.cards.push_back(std::move(entry));
  }

  diagnostics.nvidiaDevices = scanNvidiaPciDevices(*sources_.files);
  NvmlDiagnostics& nvml = diagnostics.nvml;
  const bool anyAsleep =
      std::any_of(diagnostics.nvidiaDevices.begin(), diagnostics.nvidiaDevices.end(),
                  [](const NvidiaPciDevice& device) { return isAsleep(device.runtimeStatus); });
  if (diagnostics.nvidiaDevices.empty()) {
    nvml.skipReason = "no NVIDIA display controller";
  } else if (anyAsleep) {
    nvml.skipReason = "an NVIDIA GPU is asleep";
  } else if (!sources_.makeNvml) {
    nvml.skipReason = "no NVML access configured";
  } else if (const std::unique_ptr<NvmlLibrary> library = sources_.makeNvml(); !library) {
    nvml.skipReason = "no NVML access configured";
  } else {
    nvml.opened = library->open();
    nvml.error = library->lastError();
    if (nvml.opened) {
      nvml.deviceCount = library->deviceCount();
      for (unsigned index = 0; index < nvml.deviceCount.value_or(0); ++index) {
        nvml.devices.push_back(library->readDevice(index));
      }
      library->close();
    }
  }
  return diagnostics;
}

LinuxDiagnosticReport LinuxDiagnostics::collect() const {
  LinuxDiagnosticReport report;
  report.cpu = cpu();
  report.memory = memory();
  report.disk = disk();
  report.power = power();
  report.temperatures = temperatures();
  report.raplZones = raplZones();
  report.gpus = gpus();
  return report;
}

}  // namespace brimly
