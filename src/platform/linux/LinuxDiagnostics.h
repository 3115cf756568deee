#pragma once

#include "platform/linux/LinuxDiagnosticReport.h"
#include "platform/linux/LinuxPlatformFactory.h"

namespace brimly {

// Reads the raw figures behind each Linux reading, with their sources, for the diagnostic
// report. It reads afresh on every call, holds nothing between calls and follows the readers'
// rules: nothing is read that would wake a sleeping device or start a process, and NVML is
// opened only for the call that asks and shut down again.
class LinuxDiagnostics {
 public:
  explicit LinuxDiagnostics(LinuxSources sources = LinuxSources::system());

  CpuDiagnostics cpu() const;
  MemoryDiagnostics memory() const;
  DiskDiagnostics disk() const;
  PowerDiagnostics power() const;
  TemperatureDiagnostics temperatures() const;
  std::vector<RaplZoneDiagnostics> raplZones() const;
  GpuDiagnostics gpus() const;
  LinuxDiagnosticReport collect() const;

 private:
  std::string absolute(const std::string& path) const;

  LinuxSources sources_;
};

}  // namespace brimly
