#pragma once

#include "audit/KernelFigureSource.h"
#include "platform/linux/LinuxDiagnostics.h"

namespace brimly {

// The raw figures the Linux backend's diagnostics read, in the plain form the report quotes:
// /proc/meminfo and statvfs exactly as the memory and disk readers see them, and for the GPU,
// the sensors and the RAPL counters what each device, file or library gave.
class LinuxKernelFigures final : public KernelFigureSource {
 public:
  explicit LinuxKernelFigures(LinuxSources sources = LinuxSources::system());

  MeminfoFigures meminfo() override;
  std::optional<RootFilesystemFigures> rootFilesystem() override;
  std::vector<std::string> gpuNotes() override;
  std::vector<std::string> temperatureNotes() override;
  EnergyCounterAccess energyCounterAccess() override;
  std::vector<std::string> energyNotes() override;

 private:
  LinuxDiagnostics diagnostics_;
};

}  // namespace brimly
