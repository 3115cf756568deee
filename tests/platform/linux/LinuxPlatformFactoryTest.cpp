#include "platform/linux/LinuxPlatformFactory.h"

#include <gtest/gtest.h>

#include "LinuxTestSupport.h"
#include "platform/SystemPlatform.h"
#include "platform/linux/RootedFileSystem.h"

namespace brimly {
namespace {

using testing::FakeFileSystemStats;
using testing::FakeNvml;
using testing::FakeNvmlState;

class AmdLaptopFactory : public ::testing::Test {
 protected:
  AmdLaptopFactory() {
    LinuxSources sources;
    sources.files = testing::recordingFixture("amd-laptop-charging");
    sources.fileSystemStats = stats;
    sources.diskPath = "/fixture";
    sources.makeNvml = [this] {
      ++nvmlMade;
      return std::make_unique<FakeNvml>(std::make_shared<FakeNvmlState>());
    };
    factory = std::make_unique<LinuxPlatformFactory>(std::move(sources));
  }

  std::shared_ptr<FakeFileSystemStats> stats =
      std::make_shared<FakeFileSystemStats>(FileSystemStats{4096, 4096, 1000, 600, 500});
  int nvmlMade = 0;
  std::unique_ptr<LinuxPlatformFactory> factory;
};

TEST_F(AmdLaptopFactory, EveryReaderReadsTheSameMachine) {
  EXPECT_EQ(factory->makeCpuTicksPort()->readCpuTicks(),
            (CpuTicks{982211, 310044, 19850132, 1201}));
  EXPECT_EQ(factory->makeMemoryPort()->readMemory().vm->activePages, 31457280u - 25165824u);
  EXPECT_EQ(factory->makeDiskPort()->readDiskCapacities(),
            (DiskCapacities{2048000, 4096000, 1638400}));
  EXPECT_EQ(stats->paths(), (std::vector<std::string>{"/fixture"}));
  const auto services = factory->makeAcceleratorPort()->readAcceleratorServices();
  ASSERT_EQ(services->size(), 1u);
  EXPECT_EQ((*services)[0]->dict("PerformanceStatistics")->integer("Device Utilization %"), 23);
  EXPECT_EQ((*factory->makePowerSourcePort()->readPowerSourceDescriptions())[0]->integer("Current"),
            1863);
  EXPECT_EQ(factory->makeTemperatureSensorPort()->readTemperatureSensors().size(), 5u);
  EXPECT_EQ(factory->makeTemperatureSensorPort()->naming(), SensorNaming::linuxHwmon);
  EXPECT_FALSE(factory->makeEnergyCounterPort()->isAvailable());
}

TEST_F(AmdLaptopFactory, EachCallMakesAReaderOfItsOwn) {
  const auto first = factory->makeCpuTicksPort();
  const auto second = factory->makeCpuTicksPort();
  EXPECT_NE(first.get(), second.get());
  const auto gpuA = factory->makeAcceleratorPort();
  const auto gpuB = factory->makeAcceleratorPort();
  EXPECT_NE(gpuA.get(), gpuB.get());
  EXPECT_EQ(nvmlMade, 2);  // each GPU reader holds its own NVML handle
}

TEST_F(AmdLaptopFactory, TheClockLivesWithTheFactory) {
  const MonotonicClock& clock = factory->clock();
  EXPECT_EQ(&clock, &factory->clock());
  EXPECT_GT(clock.nowSeconds(), 0.0);
}

TEST(LinuxSources, SystemSourcesReadBelowTheirRoot) {
  const LinuxSources sources = LinuxSources::system("/srv/machine");
  EXPECT_EQ(sources.diskPath, "/srv/machine");
  const auto* files = dynamic_cast<const RootedFileSystem*>(sources.files.get());
  ASSERT_NE(files, nullptr);
  EXPECT_EQ(files->root(), "/srv/machine");
  ASSERT_TRUE(sources.makeNvml);
  EXPECT_NE(sources.makeNvml(), nullptr);
  EXPECT_EQ(LinuxSources::system().diskPath, "/");
}

TEST(SystemPlatform, ReadsTheRunningLinuxSystem) {
  const std::unique_ptr<PlatformFactory> platform = makeSystemPlatform();
  ASSERT_NE(platform, nullptr);
  EXPECT_TRUE(platform->makeCpuTicksPort()->readCpuTicks().has_value());
  const MemoryReading memory = platform->makeMemoryPort()->readMemory();
  EXPECT_TRUE(memory.vm.has_value());
  EXPECT_GT(memory.physicalBytes, 0u);
  EXPECT_TRUE(platform->makeDiskPort()->readDiskCapacities().has_value());
  // The rest depends on the machine; reading it must simply work.
  EXPECT_TRUE(platform->makeAcceleratorPort()->readAcceleratorServices().has_value());
  EXPECT_TRUE(platform->makePowerSourcePort()->readPowerSourceDescriptions().has_value());
  platform->makePowerSourcePort()->readSmartBatteryProperties();
  platform->makeTemperatureSensorPort()->readTemperatureSensors();
  const auto energy = platform->makeEnergyCounterPort();
  EXPECT_EQ(energy->readCounters().has_value(), energy->isAvailable());
}

}  // namespace
}  // namespace brimly
