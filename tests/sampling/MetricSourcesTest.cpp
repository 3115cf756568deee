#include "sampling/MetricSources.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

using Kinds = std::vector<MetricKind>;

TEST(MetricSources, AMachineWithNothingButProcessorMemoryAndDiskHasNoSourceForTheRest) {
  EXPECT_EQ(MetricSources::withoutSource(MetricSample{}, false, false),
            (Kinds{MetricKind::gpu, MetricKind::temp, MetricKind::pwr}));
}

TEST(MetricSources, TheProcessorMemoryAndDiskAlwaysHaveOne) {
  // Even a sample of zeros: their readers need only /proc and statvfs.
  for (const MetricKind kind : {MetricKind::cpu, MetricKind::ram, MetricKind::disk}) {
    const Kinds without = MetricSources::withoutSource(MetricSample{}, false, false);
    EXPECT_EQ(std::count(without.begin(), without.end(), kind), 0) << kind.rawValue();
  }
}

TEST(MetricSources, AGpuLoadInTheSampleOrAnAcceleratorThatHasOneIsASource) {
  MetricSample sample;
  sample.gpu = 0.0;
  EXPECT_EQ(MetricSources::withoutSource(sample, false, false),
            (Kinds{MetricKind::temp, MetricKind::pwr}));
  // An accelerator asleep gives no figure now, but will.
  EXPECT_EQ(MetricSources::withoutSource(MetricSample{}, true, false),
            (Kinds{MetricKind::temp, MetricKind::pwr}));
}

TEST(MetricSources, ATemperatureIsASource) {
  MetricSample sample;
  sample.temperatureC = 41.0;
  EXPECT_EQ(MetricSources::withoutSource(sample, false, false),
            (Kinds{MetricKind::gpu, MetricKind::pwr}));
}

TEST(MetricSources, PowerNeedsABatteryAMainsSupplyOrEnergyCounters) {
  MetricSample battery;
  battery.powerState = PowerState::discharging(7.5);
  MetricSample mains;
  mains.powerState = PowerState::acIdle();
  MetricSample chargeOnly;
  chargeOnly.batteryPercent = 64;
  MetricSample draw;
  draw.systemPowerWatts = 12.0;
  for (const MetricSample& sample : {battery, mains, chargeOnly, draw}) {
    EXPECT_EQ(MetricSources::withoutSource(sample, false, false),
              (Kinds{MetricKind::gpu, MetricKind::temp}));
  }
  // Counters that could be read: their first reading gives no watts yet.
  EXPECT_EQ(MetricSources::withoutSource(MetricSample{}, false, true),
            (Kinds{MetricKind::gpu, MetricKind::temp}));
}

TEST(MetricSources, AMachineWithEverythingLacksNothing) {
  MetricSample sample;
  sample.gpu = 0.2;
  sample.temperatureC = 55.0;
  sample.powerState = PowerState::charging(20.0);
  EXPECT_TRUE(MetricSources::withoutSource(sample, true, true).empty());
}

}  // namespace
}  // namespace brimly
