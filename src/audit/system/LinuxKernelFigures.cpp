#include "audit/system/LinuxKernelFigures.h"

#include <cerrno>
#include <utility>

#include "audit/system/SystemKernelFigures.h"

namespace brimly {

namespace {

std::string orUnknown(const std::optional<std::string>& text) {
  return text ? *text : "?";
}

bool isRefusal(int error) {
  return error == EACCES || error == EPERM;
}

std::string cardNote(const DrmCardDiagnostics& entry) {
  std::string note =
      entry.path + " (" + (entry.card.driver.empty() ? "?" : entry.card.driver) + "): ";
  if (entry.busyPercent)
    return note + "gpu_busy_percent " + std::to_string(*entry.busyPercent) + "%";
  if (!entry.skipReason.empty()) return note + "not read, " + entry.skipReason;
  if (entry.error != 0)
    return note + "gpu_busy_percent unreadable (" + describeError(entry.error) + ")";
  return note + "no gpu_busy_percent (only amdgpu has one)";
}

std::string nvmlNote(const NvmlDiagnostics& nvml) {
  if (!nvml.skipReason.empty()) return "NVML: not asked, " + nvml.skipReason;
  if (!nvml.opened) return "NVML: could not be opened (" + nvml.error + ")";
  return "NVML: " + std::to_string(nvml.deviceCount.value_or(0)) + " device(s)";
}

}  // namespace

LinuxKernelFigures::LinuxKernelFigures(LinuxSources sources) : diagnostics_(std::move(sources)) {}

MeminfoFigures LinuxKernelFigures::meminfo() {
  const MemoryDiagnostics memory = diagnostics_.memory();
  MeminfoFigures figures;
  figures.path = memory.path;
  figures.error = describeError(memory.error);
  figures.fieldsKiB = memory.fieldsKiB;
  return figures;
}

std::optional<RootFilesystemFigures> LinuxKernelFigures::rootFilesystem() {
  const DiskDiagnostics disk = diagnostics_.disk();
  if (!disk.stats) return std::nullopt;
  // statvfs counts in fragments; a file system that reports no fragment size counts in blocks.
  const FileSystemStats& stats = *disk.stats;
  const std::uint64_t unit = stats.fragmentSize != 0 ? stats.fragmentSize : stats.blockSize;
  return RootFilesystemFigures{unit, stats.blocks, stats.freeBlocks, stats.availableBlocks,
                               stats.blockSize};
}

std::vector<std::string> LinuxKernelFigures::gpuNotes() {
  const GpuDiagnostics gpus = diagnostics_.gpus();
  std::vector<std::string> notes;
  if (gpus.cards.empty()) notes.push_back("DRM cards: none under /sys/class/drm");
  for (const DrmCardDiagnostics& card : gpus.cards)
    notes.push_back(cardNote(card));
  notes.push_back(nvmlNote(gpus.nvml));
  return notes;
}

std::vector<std::string> LinuxKernelFigures::temperatureNotes() {
  const TemperatureDiagnostics temperatures = diagnostics_.temperatures();
  std::vector<std::string> notes;
  for (const HwmonChipDiagnostics& chip : temperatures.chips) {
    if (!chip.skipReason.empty()) {
      notes.push_back(chip.path + " (" + orUnknown(chip.name) + "): not read, " + chip.skipReason);
      continue;
    }
    for (const TemperatureInputDiagnostics& input : chip.inputs) {
      if (input.read && input.error != 0) {
        notes.push_back(input.path + ": " + describeError(input.error));
      }
    }
  }
  for (const ThermalZoneDiagnostics& zone : temperatures.zones) {
    if (!zone.skipReason.empty()) {
      notes.push_back(zone.path + " (" + orUnknown(zone.type) + "): not read, " + zone.skipReason);
    } else if (zone.error != 0) {
      notes.push_back(zone.path + "/temp: " + describeError(zone.error));
    }
  }
  return notes;
}

EnergyCounterAccess LinuxKernelFigures::energyCounterAccess() {
  bool anyCounted = false;
  bool anyRefused = false;
  for (const RaplZoneDiagnostics& zone : diagnostics_.raplZones()) {
    if (zone.channel.empty()) continue;
    anyCounted = true;
    anyRefused = anyRefused || isRefusal(zone.error);
  }
  if (!anyCounted) return EnergyCounterAccess::noZones;
  return anyRefused ? EnergyCounterAccess::notPermitted : EnergyCounterAccess::readable;
}

std::vector<std::string> LinuxKernelFigures::energyNotes() {
  std::vector<std::string> notes;
  for (const RaplZoneDiagnostics& zone : diagnostics_.raplZones()) {
    if (zone.channel.empty()) continue;
    std::string note = zone.path + " (" + orUnknown(zone.name) + "): energy_uj ";
    note += zone.error == 0 ? "readable" : "unreadable (" + describeError(zone.error) + ")";
    notes.push_back(std::move(note));
  }
  return notes;
}

std::unique_ptr<KernelFigureSource> makeSystemKernelFigures() {
  return std::make_unique<LinuxKernelFigures>();
}

}  // namespace brimly
