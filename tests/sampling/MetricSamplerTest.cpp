#include "sampling/MetricSampler.h"

#include <gtest/gtest.h>

#include "FakePlatform.h"

namespace brimly {
namespace {

using testing::FakeMachine;
using testing::FakePlatform;

TEST(MetricSampler, FirstSampleShowsNoProcessorLoadAndReadsTheDisk) {
  FakePlatform platform;
  MetricSampler sampler(platform);
  const MetricSample sample = sampler.sample();
  EXPECT_EQ(sample.cpu, 0.0);
  EXPECT_EQ(platform.readCounts().disk, 1);
  EXPECT_EQ(sample.diskUsedBytes, 194'384'795'648);
  EXPECT_EQ(sample.diskTotalBytes, 494'384'795'648);
  EXPECT_DOUBLE_EQ(sample.disk, 194'384'795'648.0 / 494'384'795'648.0);
}

TEST(MetricSampler, FirstSampleOfATypicalLaptop) {
  FakePlatform platform;
  MetricSampler sampler(platform);
  const MetricSample sample = sampler.sample();
  EXPECT_DOUBLE_EQ(*sample.gpu, 0.23);
  EXPECT_EQ(sample.memoryUsedBytes, 9'830'400'000u);
  EXPECT_EQ(sample.memoryTotalBytes, 17'179'869'184u);
  EXPECT_DOUBLE_EQ(sample.memory, 9'830'400'000.0 / 17'179'869'184.0);
  EXPECT_EQ(sample.swapUsedBytes, 536'870'912u);
  EXPECT_EQ(sample.swapTotalBytes, 2'147'483'648u);
  EXPECT_DOUBLE_EQ(sample.powerWatts, -16.5);
  EXPECT_EQ(sample.powerState, PowerState::discharging(16.5));
  EXPECT_EQ(sample.batteryPercent, 81);
  EXPECT_EQ(sample.temperatureC, 51.0);
  EXPECT_FALSE(sample.systemPowerWatts.has_value());  // the energy reader only primed
  EXPECT_EQ(sampler.sampleCounter(), 1);
}

TEST(MetricSampler, KnowsWhatTheMachineHasNoSourceForFromItsFirstSample) {
  FakePlatform laptop;
  MetricSampler everything(laptop);
  EXPECT_FALSE(everything.kindsWithoutSource().has_value());
  everything.sample();
  EXPECT_EQ(everything.kindsWithoutSource(), std::vector<MetricKind>{});

  FakePlatform bare(FakeMachine::bareMachine());
  MetricSampler nothing(bare);
  nothing.sample();
  EXPECT_EQ(nothing.kindsWithoutSource(),
            (std::vector<MetricKind>{MetricKind::gpu, MetricKind::temp, MetricKind::pwr}));
}

TEST(MetricSampler, TheFirstSampleDecidesAndLaterOnesChangeNothing) {
  // A desktop whose power comes only from energy counters: their first reading gives no watts,
  // but they are a source.
  FakeMachine desktop = FakeMachine::bareMachine();
  desktop.energyAvailable = true;
  desktop.energyCounters = std::vector<EnergyCounter>{{"CPU Energy", 0, 0}};
  FakePlatform platform(desktop);
  MetricSampler sampler(platform);
  EXPECT_FALSE(sampler.sample().systemPowerWatts.has_value());
  const std::vector<MetricKind> without{MetricKind::gpu, MetricKind::temp};
  EXPECT_EQ(sampler.kindsWithoutSource(), without);
  // A GPU that turns up later does not change what the first sample found.
  platform.change([](FakeMachine& machine) {
    machine.accelerators = std::vector<std::optional<PropertyDict>>{
        PropertyDict{{"PerformanceStatistics", PropertyDict{{"GPU Busy", 10}}}}};
  });
  platform.ownClock().advance(1.0);
  EXPECT_TRUE(sampler.sample().gpu.has_value());
  EXPECT_EQ(sampler.kindsWithoutSource(), without);
}

TEST(MetricSampler, LaterSamplesMeasureProcessorLoadAndSocPowerSinceThePreviousOne) {
  FakePlatform platform;
  MetricSampler sampler(platform);
  sampler.sample();
  platform.ownClock().advance(1.0);
  platform.change([](FakeMachine& machine) {
    machine.addCpuTicks(300, 100);
    machine.addEnergy("CPU Energy", 2'000'000'000);
    machine.addEnergy("GPU Energy", 500'000'000);
  });
  const MetricSample sample = sampler.sample();
  EXPECT_DOUBLE_EQ(sample.cpu, 0.75);
  EXPECT_DOUBLE_EQ(*sample.systemPowerWatts, 2.5);
}

TEST(MetricSampler, TicksAreNotReadAgainWithinThePlatformsSpacing) {
  FakePlatform platform;
  platform.setTickReadingSpacingSeconds(0.5);
  MetricSampler sampler(platform);
  sampler.sample();
  platform.ownClock().advance(1.0);
  platform.change([](FakeMachine& machine) { machine.addCpuTicks(300, 100); });
  EXPECT_DOUBLE_EQ(sampler.sample().cpu, 0.75);
  EXPECT_EQ(platform.readCounts().cpuTicks, 2);

  // A timer restarted at once: 0.2 s later the system would answer with a copy of its last answer.
  platform.ownClock().advance(0.2);
  platform.change([](FakeMachine& machine) { machine.addCpuTicks(0, 100); });
  EXPECT_DOUBLE_EQ(sampler.sample().cpu, 0.75);
  EXPECT_EQ(platform.readCounts().cpuTicks, 2);

  // Half a second after the last reading the ticks are read again, and the figure covers the
  // whole time since that reading.
  platform.ownClock().advance(0.3);
  platform.change([](FakeMachine& machine) { machine.addCpuTicks(100, 0); });
  EXPECT_DOUBLE_EQ(sampler.sample().cpu, 0.5);
  EXPECT_EQ(platform.readCounts().cpuTicks, 3);
}

TEST(MetricSampler, WithoutASpacingEveryCallReadsTheTicks) {
  FakePlatform platform;
  MetricSampler sampler(platform);
  sampler.sample();
  platform.change([](FakeMachine& machine) { machine.addCpuTicks(100, 300); });
  EXPECT_DOUBLE_EQ(sampler.sample().cpu, 0.25);  // no time passed on the clock at all
  EXPECT_EQ(platform.readCounts().cpuTicks, 2);
}

TEST(MetricSampler, TheSpacingLeavesTheOtherReadingsAlone) {
  FakePlatform platform;
  platform.setTickReadingSpacingSeconds(0.5);
  MetricSampler sampler(platform);
  sampler.sample();
  sampler.sample();
  EXPECT_EQ(platform.readCounts().cpuTicks, 1);
  EXPECT_EQ(platform.readCounts().memory, 2);
  EXPECT_EQ(platform.readCounts().accelerators, 2);
  EXPECT_EQ(platform.readCounts().powerSources, 2);
}

TEST(MetricSampler, DiskIsReadOnCallsOneTenTwentyOnly) {
  FakePlatform platform;
  MetricSampler sampler(platform);
  std::vector<int> readingCalls;
  for (int call = 1; call <= 21; ++call) {
    const int before = platform.readCounts().disk;
    sampler.sample();
    if (platform.readCounts().disk > before) readingCalls.push_back(call);
  }
  EXPECT_EQ(readingCalls, (std::vector<int>{1, 10, 20}));
}

TEST(MetricSampler, SamplesBetweenDiskReadingsRepeatTheLastFigures) {
  FakePlatform platform;
  MetricSampler sampler(platform);
  sampler.sample();
  platform.change([](FakeMachine& machine) { machine.disk = DiskCapacities{100, 1000}; });
  for (int call = 2; call <= 9; ++call) {
    EXPECT_EQ(sampler.sample().diskTotalBytes, 494'384'795'648) << call;
  }
  const MetricSample tenth = sampler.sample();
  EXPECT_EQ(tenth.diskUsedBytes, 900);
  EXPECT_EQ(tenth.diskTotalBytes, 1000);
  EXPECT_DOUBLE_EQ(tenth.disk, 0.9);
  EXPECT_EQ(sampler.sample().diskUsedBytes, 900);  // call 11 repeats
}

TEST(MetricSampler, DiskQueryWithZeroTotalKeepsTheLastFraction) {
  FakePlatform platform;
  platform.change([](FakeMachine& machine) { machine.disk = DiskCapacities{250, 1000}; });
  MetricSampler sampler(platform);
  EXPECT_DOUBLE_EQ(sampler.sample().disk, 0.75);
  platform.change([](FakeMachine& machine) { machine.disk = DiskCapacities{0, 0}; });
  for (int call = 2; call <= 9; ++call)
    sampler.sample();
  const MetricSample tenth = sampler.sample();
  EXPECT_EQ(platform.readCounts().disk, 2);
  EXPECT_DOUBLE_EQ(tenth.disk, 0.75);
  EXPECT_EQ(tenth.diskUsedBytes, 750);
  EXPECT_EQ(tenth.diskTotalBytes, 1000);
}

TEST(MetricSampler, DiskQueryWithZeroTotalFromTheStartGivesZero) {
  FakePlatform platform;
  platform.change([](FakeMachine& machine) { machine.disk = DiskCapacities{0, 0}; });
  MetricSampler sampler(platform);
  const MetricSample sample = sampler.sample();
  EXPECT_EQ(sample.disk, 0.0);
  EXPECT_EQ(sample.diskUsedBytes, 0);
  EXPECT_EQ(sample.diskTotalBytes, 0);
}

TEST(MetricSampler, TickCounterThatWrappedGivesASmallPositiveDifference) {
  FakePlatform platform;
  platform.change([](FakeMachine& machine) {
    machine.cpuTicks = CpuTicks{4'294'967'000u, 1'000, 4'294'967'100u, 0};
  });
  MetricSampler sampler(platform);
  sampler.sample();
  platform.change([](FakeMachine& machine) { machine.addCpuTicks(600, 600); });  // both wrap
  EXPECT_DOUBLE_EQ(sampler.sample().cpu, 0.5);
  EXPECT_LT(platform.machine().cpuTicks->user, 1000u);
}

TEST(MetricSampler, IdenticalCountersGiveZeroLoad) {
  FakePlatform platform;
  MetricSampler sampler(platform);
  sampler.sample();
  EXPECT_EQ(sampler.sample().cpu, 0.0);
}

TEST(MetricSampler, FailedProcessorReadingGivesZeroAndTheNextMeasuresFromTheLastGoodOne) {
  FakePlatform platform;
  MetricSampler sampler(platform);
  sampler.sample();
  const auto ticks = platform.machine().cpuTicks;
  platform.change([](FakeMachine& machine) { machine.cpuTicks = std::nullopt; });
  EXPECT_EQ(sampler.sample().cpu, 0.0);
  platform.change([&](FakeMachine& machine) {
    machine.cpuTicks = ticks;
    machine.addCpuTicks(100, 300);
  });
  EXPECT_DOUBLE_EQ(sampler.sample().cpu, 0.25);
}

TEST(MetricSampler, GpuStatisticsFollowTheKeyOrder) {
  FakePlatform platform;
  MetricSampler sampler(platform);
  const auto withStatistics = [](PropertyDict statistics) {
    return std::vector<std::optional<PropertyDict>>{
        PropertyDict{{"PerformanceStatistics", std::move(statistics)}}};
  };
  platform.change([&](FakeMachine& machine) {
    machine.accelerators = withStatistics(PropertyDict{{"GPU Busy", 250}});
  });
  EXPECT_EQ(sampler.readGPU(), 1.0);
  platform.change([&](FakeMachine& machine) {
    machine.accelerators =
        withStatistics(PropertyDict{{"Device Utilization %", 37}, {"GPU Busy", 90}});
  });
  EXPECT_DOUBLE_EQ(*sampler.readGPU(), 0.37);
}

TEST(MetricSampler, NoAcceleratorGivesAbsentGpuNotZero) {
  FakePlatform platform;
  platform.change([](FakeMachine& machine) {
    machine.accelerators = std::vector<std::optional<PropertyDict>>{};
  });
  MetricSampler sampler(platform);
  EXPECT_FALSE(sampler.sample().gpu.has_value());
}

TEST(MetricSampler, SwapQueryFailureGivesZerosNotAbsence) {
  FakePlatform platform;
  platform.change([](FakeMachine& machine) { machine.memory.swap = std::nullopt; });
  MetricSampler sampler(platform);
  const MetricSample sample = sampler.sample();
  EXPECT_EQ(sample.swapUsedBytes, 0u);
  EXPECT_EQ(sample.swapTotalBytes, 0u);
  EXPECT_GT(sample.memoryUsedBytes, 0u);  // the rest of memory still reads
}

TEST(MetricSampler, FailedMemoryStatisticsLeaveTheMemoryFieldsAtZero) {
  FakePlatform platform;
  platform.change([](FakeMachine& machine) { machine.memory.vm = std::nullopt; });
  MetricSampler sampler(platform);
  const MetricSample sample = sampler.sample();
  EXPECT_EQ(sample.memoryUsedBytes, 0u);
  EXPECT_EQ(sample.memoryTotalBytes, 0u);
  EXPECT_EQ(sample.memory, 0.0);
  EXPECT_EQ(sample.swapTotalBytes, 2'147'483'648u);
}

TEST(MetricSampler, ReadMemoryFillsTheThreeMemoryFieldsOnly) {
  FakePlatform platform;
  MetricSampler sampler(platform);
  MetricSample sample;
  sampler.readMemory(sample);
  MetricSample expected;
  expected.memoryUsedBytes = 9'830'400'000u;
  expected.memoryTotalBytes = 17'179'869'184u;
  expected.memory = 9'830'400'000.0 / 17'179'869'184.0;
  EXPECT_EQ(sample, expected);
}

TEST(MetricSampler, BareMachineGivesTheDefaultSample) {
  FakePlatform platform(FakeMachine::bareMachine());
  MetricSampler sampler(platform);
  for (int call = 0; call < 12; ++call) {
    platform.ownClock().advance(1.0);
    EXPECT_EQ(sampler.sample(), MetricSample{}) << call;
  }
  EXPECT_EQ(sampler.sampleCounter(), 12);
}

TEST(MetricSampler, RegistryVoltageIsAskedOnlyWhenTheSourceListHasEntries) {
  FakePlatform platform;
  platform.change([](FakeMachine& machine) {
    machine.powerSources = std::vector<std::optional<PropertyDict>>{};
  });
  MetricSampler sampler(platform);
  MetricSample sample;
  EXPECT_EQ(sampler.readPower(sample), std::make_pair(0.0, PowerState::unknown()));
  EXPECT_EQ(platform.readCounts().smartBattery, 0);
  EXPECT_FALSE(sample.batteryPercent.has_value());

  platform.change([](FakeMachine& machine) {
    machine.powerSources = std::vector<std::optional<PropertyDict>>{
        PropertyDict{{"Power Source State", "AC Power"}, {"Is Charging", true}, {"Current", 2000}}};
    machine.smartBattery = PropertyDict{{"Voltage", 12500}};
  });
  EXPECT_EQ(sampler.readPower(sample), std::make_pair(25.0, PowerState::charging(25.0)));
  EXPECT_EQ(platform.readCounts().smartBattery, 1);
  EXPECT_EQ(sampler.readBatteryVoltageMV(), 12500);
}

TEST(MetricSampler, DesktopOnMainsWithoutABatteryIsIdleWithoutAPercent) {
  FakePlatform platform(FakeMachine::bareMachine());
  platform.change([](FakeMachine& machine) {
    machine.powerSources =
        std::vector<std::optional<PropertyDict>>{PropertyDict{{"Power Source State", "AC Power"}}};
  });
  MetricSampler sampler(platform);
  const MetricSample sample = sampler.sample();
  EXPECT_EQ(sample.powerState, PowerState::acIdle());
  EXPECT_EQ(sample.powerWatts, 0.0);
  EXPECT_FALSE(sample.batteryPercent.has_value());
}

TEST(MetricSampler, TemperatureFollowsTheSensorsOnEverySample) {
  FakePlatform platform;
  MetricSampler sampler(platform);
  EXPECT_EQ(sampler.sample().temperatureC, 51.0);
  platform.change([](FakeMachine& machine) { machine.temperatureSensors.clear(); });
  EXPECT_FALSE(sampler.sample().temperatureC.has_value());
}

}  // namespace
}  // namespace brimly
