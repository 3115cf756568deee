#include "usage/MetricCellContent.h"

#include <gtest/gtest.h>

#include "usage/UsageColors.h"

namespace brimly {
namespace {

constexpr std::uint64_t GiB = std::uint64_t{1} << 30;

MetricSample busyLaptop() {
  MetricSample sample;
  sample.cpu = 0.426;
  sample.gpu = 0.17;
  sample.memoryUsedBytes = 8 * GiB + GiB / 2;
  sample.memoryTotalBytes = 16 * GiB;
  sample.memory = 0.53125;
  sample.swapUsedBytes = 512 * (std::uint64_t{1} << 20);
  sample.diskUsedBytes = static_cast<std::int64_t>(234 * GiB);
  sample.diskTotalBytes = static_cast<std::int64_t>(460 * GiB);
  sample.disk = 234.0 / 460.0;
  sample.powerState = PowerState::discharging(7.4);
  sample.batteryPercent = 85;
  sample.temperatureC = 65.0;
  sample.systemPowerWatts = 4.2;
  return sample;
}

TEST(MetricCellContent, CpuCell) {
  const auto cell = MetricCellContent::of(MetricKind::cpu, busyLaptop(), false);
  EXPECT_EQ(cell, (MetricCellContent{"CPU", "43%", " ", 0.426, BarPalette::usage()}));
}

TEST(MetricCellContent, GpuCellWithAndWithoutReading) {
  MetricSample sample = busyLaptop();
  EXPECT_EQ(MetricCellContent::of(MetricKind::gpu, sample, false),
            (MetricCellContent{"GPU", "17%", " ", 0.17, BarPalette::usage()}));
  sample.gpu.reset();
  EXPECT_EQ(MetricCellContent::of(MetricKind::gpu, sample, false),
            (MetricCellContent{"GPU", "\u2014", " ", 0.0, BarPalette::absent()}));
}

TEST(MetricCellContent, RamCell) {
  EXPECT_EQ(MetricCellContent::of(MetricKind::ram, busyLaptop(), false),
            (MetricCellContent{"RAM", "53%", "8.5 / 16 GB \u00B7 swap 512M", 0.53125,
                               BarPalette::usage()}));
}

TEST(MetricCellContent, DiskCell) {
  EXPECT_EQ(MetricCellContent::of(MetricKind::disk, busyLaptop(), false),
            (MetricCellContent{"DISK", "51%", "234 / 460 GB", 234.0 / 460.0, BarPalette::usage()}));
}

TEST(MetricCellContent, TempCellUsesTheUnitForTextButCelsiusForTheBar) {
  EXPECT_EQ(MetricCellContent::of(MetricKind::temp, busyLaptop(), false),
            (MetricCellContent{"TEMP", "65\u00B0C", " ", 0.5, BarPalette::heat()}));
  EXPECT_EQ(MetricCellContent::of(MetricKind::temp, busyLaptop(), true),
            (MetricCellContent{"TEMP", "149\u00B0F", " ", 0.5, BarPalette::heat()}));
}

TEST(MetricCellContent, PowerCellCarriesTheStateInItsPalette) {
  EXPECT_EQ(MetricCellContent::of(MetricKind::pwr, busyLaptop(), false),
            (MetricCellContent{"PWR", "7.4 W", "battery \u00B7 85%", 7.4 / 50.0,
                               BarPalette::power(PowerState::discharging(7.4))}));
}

TEST(MetricCellContent, EmptySampleShowsPlaceholders) {
  const MetricSample empty;
  EXPECT_EQ(MetricCellContent::of(MetricKind::cpu, empty, false).primary, "0%");
  EXPECT_EQ(MetricCellContent::of(MetricKind::ram, empty, false).secondary, " ");
  EXPECT_EQ(MetricCellContent::of(MetricKind::disk, empty, false).secondary, " ");
  EXPECT_EQ(MetricCellContent::of(MetricKind::temp, empty, false).primary, "\u2014");
  EXPECT_EQ(MetricCellContent::of(MetricKind::temp, empty, false).barValue, 0.0);
  const auto power = MetricCellContent::of(MetricKind::pwr, empty, false);
  EXPECT_EQ(power.primary, "\u2014");
  EXPECT_EQ(power.secondary, "");
  EXPECT_EQ(power.barValue, 0.0);
}

TEST(MetricCellContent, AReadingThatCouldNotBeTakenHasItsStubDimmed) {
  // Never in a load colour: a green stub reads as "0 %, fine".
  const MetricSample empty;
  for (const MetricKind kind : {MetricKind::gpu, MetricKind::temp, MetricKind::pwr}) {
    const MetricCellContent cell = MetricCellContent::of(kind, empty, false);
    EXPECT_EQ(cell.palette, BarPalette::absent()) << kind.rawValue();
    EXPECT_EQ(colors(cell.barValue, cell.palette), (ColorPair{dimmedBar, dimmedBar}))
        << kind.rawValue();
  }
  // Readings that are there keep their colours, however low.
  MetricSample idle;
  idle.gpu = 0.0;
  idle.temperatureC = 20.0;
  EXPECT_EQ(MetricCellContent::of(MetricKind::gpu, idle, false).palette, BarPalette::usage());
  EXPECT_EQ(MetricCellContent::of(MetricKind::temp, idle, false).palette, BarPalette::heat());
  // On mains without a measured draw the power cell says "AC": a source, shown in its own grey.
  idle.powerState = PowerState::acIdle();
  EXPECT_EQ(MetricCellContent::of(MetricKind::pwr, idle, false).palette,
            BarPalette::power(PowerState::acIdle()));
  // The processor, memory and disk always have a reading.
  for (const MetricKind kind : {MetricKind::cpu, MetricKind::ram, MetricKind::disk}) {
    EXPECT_EQ(MetricCellContent::of(kind, empty, false).palette, BarPalette::usage())
        << kind.rawValue();
  }
}

TEST(MetricCellContent, LoadFractionsAreNotClamped) {
  MetricSample sample;
  sample.cpu = 1.2;
  sample.memory = -0.1;
  EXPECT_EQ(MetricCellContent::of(MetricKind::cpu, sample, false).barValue, 1.2);
  EXPECT_EQ(MetricCellContent::of(MetricKind::ram, sample, false).barValue, -0.1);
}

TEST(MetricCellContent, EveryKindIsLabelledWithItsDisplayName) {
  for (const MetricKind kind : MetricKind::allCases()) {
    EXPECT_EQ(MetricCellContent::of(kind, busyLaptop(), false).label, kind.displayName());
  }
}

}  // namespace
}  // namespace brimly
