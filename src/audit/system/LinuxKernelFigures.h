#pragma once

#include "audit/KernelFigureSource.h"
#include "platform/linux/LinuxPlatformFactory.h"

namespace brimly {

// The raw figures read through the Linux backend's own sources: /proc/meminfo and statvfs exactly
// as the memory and disk readers see them, and whether the RAPL zones the energy reader counts
// have readable counters.
class LinuxKernelFigures final : public KernelFigureSource {
 public:
  explicit LinuxKernelFigures(LinuxSources sources = LinuxSources::system());

  std::optional<std::vector<KernelFigure>> meminfoKiB() override;
  std::optional<RootFilesystemFigures> rootFilesystem() override;
  EnergyCounterAccess energyCounterAccess() override;

 private:
  LinuxSources sources_;
};

}  // namespace brimly
