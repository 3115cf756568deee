#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/PlatformFactory.h"
#include "platform/linux/FileSystemStats.h"
#include "platform/linux/FileSystemView.h"
#include "platform/linux/LinuxMonotonicClock.h"
#include "platform/linux/NvmlLibrary.h"

namespace brimly {

// Where the Linux readers get their figures: the kernel's files below a root, statvfs of that
// root, a fresh NVML handle per GPU reader, and the time.
struct LinuxSources {
  std::shared_ptr<const FileSystemView> files;
  std::string root = "/";  // the directory `files` reads below, as diagnostics name paths
  std::shared_ptr<const FileSystemStatsSource> fileSystemStats;
  std::string diskPath = "/";
  std::function<std::unique_ptr<NvmlLibrary>()> makeNvml;
  // The clock of energy rates and of how often devices are listed; none: the system's monotonic
  // clock.
  std::shared_ptr<const MonotonicClock> clock;

  // The running system seen from `root` ("/" in production): real files, statvfs(root) and
  // NVML loaded at run time.
  static LinuxSources system(const std::string& root = "/");
};

// The Linux readers. Each call makes a reader of its own; the file view and the statvfs source
// hold no state and are shared between them.
class LinuxPlatformFactory : public PlatformFactory {
 public:
  explicit LinuxPlatformFactory(LinuxSources sources = LinuxSources::system());

  std::unique_ptr<CpuTicksPort> makeCpuTicksPort() const override;
  std::unique_ptr<MemoryPort> makeMemoryPort() const override;
  std::unique_ptr<DiskPort> makeDiskPort() const override;
  std::unique_ptr<AcceleratorPort> makeAcceleratorPort() const override;
  std::unique_ptr<PowerSourcePort> makePowerSourcePort() const override;
  std::unique_ptr<TemperatureSensorPort> makeTemperatureSensorPort() const override;
  std::unique_ptr<EnergyCounterPort> makeEnergyCounterPort() const override;
  const MonotonicClock& clock() const override {
    return sources_.clock ? *sources_.clock : systemClock_;
  }

  const LinuxSources& sources() const { return sources_; }

 private:
  LinuxSources sources_;
  LinuxMonotonicClock systemClock_;
};

}  // namespace brimly
