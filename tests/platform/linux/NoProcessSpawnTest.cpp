#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "LinuxTestSupport.h"
#include "platform/SystemPlatform.h"
#include "platform/linux/LinuxDiagnostics.h"
#include "platform/linux/LinuxPlatformFactory.h"

extern "C" int brimlySpawnAttempts();
extern "C" void brimlyResetSpawnAttempts();

namespace brimly {
namespace {

void readEverything(const PlatformFactory& platform) {
  platform.makeCpuTicksPort()->readCpuTicks();
  platform.makeMemoryPort()->readMemory();
  platform.makeDiskPort()->readDiskCapacities();
  platform.makeAcceleratorPort()->readAcceleratorServices();
  platform.makePowerSourcePort()->readPowerSourceDescriptions();
  platform.makePowerSourcePort()->readSmartBatteryProperties();
  platform.makeTemperatureSensorPort()->readTemperatureSensors();
  const auto energy = platform.makeEnergyCounterPort();
  energy->readCounters();
  platform.clock().nowSeconds();
}

TEST(NoProcessSpawn, TheTrapCatchesACallThatWouldStartAProcess) {
  brimlyResetSpawnAttempts();
  EXPECT_EQ(std::system("true"), -1);
  EXPECT_EQ(brimlySpawnAttempts(), 1);
  brimlyResetSpawnAttempts();
}

TEST(NoProcessSpawn, ReadingOrDescribingEveryFixtureMachineStartsNoProcess) {
  brimlyResetSpawnAttempts();
  for (const char* machine : {"intel-laptop-discharging", "amd-laptop-charging", "nvidia-desktop",
                              "vm-bare", "suspended-dgpu", "broken"}) {
    const LinuxSources sources = LinuxSources::system(testing::fixturePath(machine));
    readEverything(LinuxPlatformFactory(sources));
    LinuxDiagnostics(sources).collect();
  }
  EXPECT_EQ(brimlySpawnAttempts(), 0);
}

TEST(NoProcessSpawn, ReadingOrDescribingTheRunningSystemStartsNoProcess) {
  brimlyResetSpawnAttempts();
  readEverything(*makeSystemPlatform());
  LinuxDiagnostics().collect();
  EXPECT_EQ(brimlySpawnAttempts(), 0);
}

}  // namespace
}  // namespace brimly
