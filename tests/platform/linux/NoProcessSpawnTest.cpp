#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "LinuxTestSupport.h"
#include "platform/SystemPlatform.h"
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

TEST(NoProcessSpawn, ReadingEveryFixtureMachineStartsNoProcess) {
  brimlyResetSpawnAttempts();
  for (const char* machine : {"intel-laptop-discharging", "amd-laptop-charging", "nvidia-desktop",
                              "vm-bare", "suspended-dgpu", "broken"}) {
    readEverything(LinuxPlatformFactory(LinuxSources::system(testing::fixturePath(machine))));
  }
  EXPECT_EQ(brimlySpawnAttempts(), 0);
}

TEST(NoProcessSpawn, ReadingTheRunningSystemStartsNoProcess) {
  brimlyResetSpawnAttempts();
  readEverything(*makeSystemPlatform());
  EXPECT_EQ(brimlySpawnAttempts(), 0);
}

}  // namespace
}  // namespace brimly
