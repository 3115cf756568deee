#include <gtest/gtest.h>
#include <sys/sysctl.h>
#include <unistd.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <thread>

#include "platform/SystemPlatform.h"

// Every reader of the macOS backend against the machine the tests run on. A reading the machine
// lacks (no battery, no sensors, no energy counters on a virtual machine) must be absent, never a
// crash. Runs on macOS only.

namespace brimly {
namespace {

// Beyond the system's limit on live tick readings (two a second at least).
constexpr useconds_t kPause = 600'000;

// How far a 32-bit counter went forward; a counter that went back gives a huge number.
std::uint32_t forward(std::uint32_t earlier, std::uint32_t later) {
  return later - earlier;
}

TEST(MacReaders, ProcessorTicksNeverDecrease) {
  const auto platform = makeSystemPlatform();
  const auto port = platform->makeCpuTicksPort();
  const std::optional<CpuTicks> first = port->readCpuTicks();
  ASSERT_TRUE(first.has_value());
  usleep(kPause);
  const std::optional<CpuTicks> second = port->readCpuTicks();
  ASSERT_TRUE(second.has_value());
  constexpr std::uint32_t kBackwards = 1u << 31;
  EXPECT_LT(forward(first->user, second->user), kBackwards);
  EXPECT_LT(forward(first->system, second->system), kBackwards);
  EXPECT_LT(forward(first->idle, second->idle), kBackwards);
  EXPECT_LT(forward(first->nice, second->nice), kBackwards);
  const std::uint64_t passed =
      std::uint64_t{forward(first->user, second->user)} + forward(first->system, second->system) +
      forward(first->idle, second->idle) + forward(first->nice, second->nice);
  EXPECT_GT(passed, 0u) << "no tick in " << kPause << " µs";
}

TEST(MacReaders, PhysicalMemoryIsTheInstalledMemory) {
  std::uint64_t installed = 0;
  std::size_t length = sizeof installed;
  ASSERT_EQ(sysctlbyname("hw.memsize", &installed, &length, nullptr, 0), 0);
  const MemoryReading reading = makeSystemPlatform()->makeMemoryPort()->readMemory();
  EXPECT_EQ(reading.physicalBytes, installed);
  ASSERT_TRUE(reading.vm.has_value());
  EXPECT_GT(reading.pageSize, 0u);
  EXPECT_GT(reading.vm->activePages + reading.vm->wiredPages, 0u);
  EXPECT_LE((reading.vm->activePages + reading.vm->wiredPages) * reading.pageSize, installed);
  ASSERT_TRUE(reading.swap.has_value());  // 0 of 0 where the system has not swapped yet
  EXPECT_LE(reading.swap->usedBytes, reading.swap->totalBytes);
}

TEST(MacReaders, TheStartUpVolumeHasACapacity) {
  const std::optional<DiskCapacities> disk =
      makeSystemPlatform()->makeDiskPort()->readDiskCapacities();
  ASSERT_TRUE(disk.has_value());
  ASSERT_TRUE(disk->total.has_value());
  EXPECT_GT(*disk->total, 0);
  if (disk->available) {
    EXPECT_GE(*disk->available, 0);
    EXPECT_LE(*disk->available, *disk->total);
  }
}

TEST(MacReaders, ThePowerSourceListParses) {
  const auto port = makeSystemPlatform()->makePowerSourcePort();
  const auto descriptions = port->readPowerSourceDescriptions();
  ASSERT_TRUE(descriptions.has_value());  // empty on a desktop, one battery on a notebook
  for (const auto& description : *descriptions) {
    ASSERT_TRUE(description.has_value());
    EXPECT_NE(description->string("Power Source State"), nullptr);
  }
  const auto voltage = port->readSmartBatteryVoltage();
  const auto battery = port->readSmartBatteryProperties();
  EXPECT_EQ(voltage.has_value(), battery.has_value());
  if (voltage && battery) {
    // The voltage alone, and the same figure as the whole entry's (mV).
    ASSERT_TRUE(voltage->integer("Voltage").has_value());
    EXPECT_GE(*voltage->integer("Voltage"), 1);
    EXPECT_LE(voltage->entries().size(), 1u);
    EXPECT_TRUE(battery->integer("Voltage").has_value());
  }
}

TEST(MacReaders, AcceleratorsAnswerWithTheirClassAndStatisticsOnly) {
  const auto services = makeSystemPlatform()->makeAcceleratorPort()->readAcceleratorServices();
  if (!services) GTEST_SKIP() << "no accelerator service on this machine";
  for (const auto& service : *services) {
    ASSERT_TRUE(service.has_value());
    EXPECT_NE(service->string("IOClass"), nullptr);
    for (const auto& [key, value] : service->entries()) {
      EXPECT_TRUE(key == "IOClass" || key == "PerformanceStatistics") << key;
    }
  }
}

TEST(MacReaders, SensorsAnswerOrAreAbsent) {
  const auto port = makeSystemPlatform()->makeTemperatureSensorPort();
  for (int round = 0; round < 3; ++round) {
    for (const RawTemperatureSensor& sensor : port->readTemperatureSensors()) {
      EXPECT_FALSE(std::isinf(sensor.celsius));
    }
  }
}

TEST(MacReaders, EnergyCountersAnswerOrAreAbsent) {
  const auto port = makeSystemPlatform()->makeEnergyCounterPort();
  if (!port->isAvailable()) {
    EXPECT_FALSE(port->readCounters().has_value());
    GTEST_SKIP() << "no energy counters on this machine";
  }
  for (int round = 0; round < 3; ++round) {
    const auto counters = port->readCounters();
    ASSERT_TRUE(counters.has_value());
    for (const EnergyCounter& counter : *counters)
      EXPECT_FALSE(counter.channel.empty());
  }
}

TEST(MacReaders, ReadersMadeOnOneThreadAnswerOnAnother) {
  // As the application makes them on the main thread and samples on its sampling thread; they
  // answer there as readers made and used on one thread do.
  const auto platform = makeSystemPlatform();
  auto sensors = platform->makeTemperatureSensorPort();
  auto energy = platform->makeEnergyCounterPort();
  auto accelerators = platform->makeAcceleratorPort();
  bool energyAvailable = false;
  bool acceleratorsAnswered = false;
  std::thread sampling([&] {
    for (int round = 0; round < 3; ++round) {
      sensors->readTemperatureSensors();
      energyAvailable = energy->isAvailable();
      if (energyAvailable) energy->readCounters();
      acceleratorsAnswered = accelerators->readAcceleratorServices().has_value();
    }
  });
  sampling.join();
  EXPECT_EQ(energyAvailable, platform->makeEnergyCounterPort()->isAvailable());
  EXPECT_EQ(acceleratorsAnswered,
            platform->makeAcceleratorPort()->readAcceleratorServices().has_value());
}

TEST(MacReaders, TheClockAdvances) {
  const auto platform = makeSystemPlatform();
  const double before = platform->clock().nowSeconds();
  usleep(100'000);
  const double after = platform->clock().nowSeconds();
  EXPECT_GE(after - before, 0.09);
  EXPECT_LT(after - before, 5.0);
}

}  // namespace
}  // namespace brimly
