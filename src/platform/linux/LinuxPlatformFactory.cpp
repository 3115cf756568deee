#include "platform/linux/LinuxPlatformFactory.h"

#include <utility>

#include "platform/linux/DynamicNvmlLibrary.h"
#include "platform/linux/LinuxAcceleratorPort.h"
#include "platform/linux/LinuxCpuTicksPort.h"
#include "platform/linux/LinuxDiskPort.h"
#include "platform/linux/LinuxEnergyCounterPort.h"
#include "platform/linux/LinuxMemoryPort.h"
#include "platform/linux/LinuxPowerSourcePort.h"
#include "platform/linux/LinuxTemperatureSensorPort.h"
#include "platform/linux/RootedFileSystem.h"

namespace brimly {

LinuxSources LinuxSources::system(const std::string& root) {
  LinuxSources sources;
  sources.files = std::make_shared<RootedFileSystem>(root);
  sources.root = root.empty() ? "/" : root;
  sources.fileSystemStats = std::make_shared<PosixFileSystemStats>();
  sources.diskPath = root.empty() ? "/" : root;
  sources.makeNvml = [] { return std::make_unique<DynamicNvmlLibrary>(); };
  return sources;
}

LinuxPlatformFactory::LinuxPlatformFactory(LinuxSources sources) : sources_(std::move(sources)) {}

std::unique_ptr<CpuTicksPort> LinuxPlatformFactory::makeCpuTicksPort() const {
  return std::make_unique<LinuxCpuTicksPort>(sources_.files);
}

std::unique_ptr<MemoryPort> LinuxPlatformFactory::makeMemoryPort() const {
  return std::make_unique<LinuxMemoryPort>(sources_.files);
}

std::unique_ptr<DiskPort> LinuxPlatformFactory::makeDiskPort() const {
  return std::make_unique<LinuxDiskPort>(sources_.fileSystemStats, sources_.diskPath);
}

std::unique_ptr<AcceleratorPort> LinuxPlatformFactory::makeAcceleratorPort() const {
  return std::make_unique<LinuxAcceleratorPort>(sources_.files,
                                                sources_.makeNvml ? sources_.makeNvml() : nullptr);
}

std::unique_ptr<PowerSourcePort> LinuxPlatformFactory::makePowerSourcePort() const {
  return std::make_unique<LinuxPowerSourcePort>(sources_.files, clock());
}

std::unique_ptr<TemperatureSensorPort> LinuxPlatformFactory::makeTemperatureSensorPort() const {
  return std::make_unique<LinuxTemperatureSensorPort>(sources_.files, clock());
}

std::unique_ptr<EnergyCounterPort> LinuxPlatformFactory::makeEnergyCounterPort() const {
  return std::make_unique<LinuxEnergyCounterPort>(sources_.files);
}

}  // namespace brimly
