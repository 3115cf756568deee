#include "audit/system/LinuxKernelFigures.h"

#include <cerrno>
#include <utility>

#include "audit/system/SystemKernelFigures.h"
#include "platform/linux/Meminfo.h"
#include "platform/linux/RaplZones.h"

namespace brimly {

LinuxKernelFigures::LinuxKernelFigures(LinuxSources sources) : sources_(std::move(sources)) {}

std::optional<std::vector<KernelFigure>> LinuxKernelFigures::meminfoKiB() {
  const FileRead read = sources_.files->read("proc/meminfo");
  if (!read.ok()) return std::nullopt;
  std::vector<KernelFigure> figures;
  for (const auto& [name, value] : parseMeminfo(read.text).fields) {
    figures.push_back({name, value});
  }
  return figures;
}

std::optional<RootFilesystemFigures> LinuxKernelFigures::rootFilesystem() {
  const auto stats = sources_.fileSystemStats->statistics(sources_.diskPath);
  if (!stats) return std::nullopt;
  // statvfs counts in fragments; a file system that reports no fragment size counts in blocks.
  const std::uint64_t unit = stats->fragmentSize != 0 ? stats->fragmentSize : stats->blockSize;
  return RootFilesystemFigures{unit, stats->blocks, stats->freeBlocks, stats->availableBlocks};
}

EnergyCounterAccess LinuxKernelFigures::energyCounterAccess() {
  bool anyCounted = false;
  bool anyRefused = false;
  for (const RaplZone& zone : scanRaplZones(*sources_.files)) {
    if (zone.channel.empty()) continue;
    anyCounted = true;
    const FileRead counter = sources_.files->read(joinPath(zone.path, "energy_uj"));
    if (counter.error == EACCES || counter.error == EPERM) anyRefused = true;
  }
  if (!anyCounted) return EnergyCounterAccess::noZones;
  return anyRefused ? EnergyCounterAccess::notPermitted : EnergyCounterAccess::readable;
}

std::unique_ptr<KernelFigureSource> makeSystemKernelFigures() {
  return std::make_unique<LinuxKernelFigures>();
}

}  // namespace brimly
