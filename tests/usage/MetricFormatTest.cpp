#include "usage/MetricFormat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace brimly {
namespace {

using namespace MetricFormat;

constexpr std::int64_t GiB = std::int64_t{1} << 30;
constexpr std::int64_t TiB = std::int64_t{1} << 40;
constexpr std::int64_t MiB = std::int64_t{1} << 20;

std::int64_t gib(double amount) {
  return static_cast<std::int64_t>(amount * static_cast<double>(GiB));
}

MetricSample withTemperature(std::optional<double> celsius) {
  MetricSample sample;
  sample.temperatureC = celsius;
  return sample;
}

MetricSample withPower(PowerState state, std::optional<double> systemWatts = std::nullopt,
                       std::optional<std::int64_t> battery = std::nullopt) {
  MetricSample sample;
  sample.powerState = state;
  sample.systemPowerWatts = systemWatts;
  sample.batteryPercent = battery;
  return sample;
}

// --- percent ---

TEST(Percent, HalfUpAtTheTopRoundsToHundred) {
  EXPECT_EQ(percent(0.995), "100%");
}

TEST(Percent, BelowHalfAPercentRoundsToZero) {
  EXPECT_EQ(percent(0.0049), "0%");
}

TEST(Percent, WorkedExamples) {
  EXPECT_EQ(percent(0.426), "43%");
  EXPECT_EQ(percent(0.005), "1%");
  EXPECT_EQ(percent(1.0), "100%");
  EXPECT_EQ(percent(0.0), "0%");
}

TEST(Percent, RoundsHalfAwayFromZeroAlsoBelowZero) {
  EXPECT_EQ(percent(0.125), "13%");
  EXPECT_EQ(percent(-0.125), "-13%");
  // A tiny negative fraction rounds to a negative zero, which the integer prints as "0".
  EXPECT_EQ(percent(-0.001), "0%");
}

TEST(Percent, FractionsAboveOneAreNotClamped) {
  EXPECT_EQ(percent(1.234), "123%");
}

TEST(PercentDeathTest, NonFiniteFractionIsFatal) {
  EXPECT_DEATH(percent(std::nan("")), "percentage out of the integer range");
  EXPECT_DEATH(percent(std::numeric_limits<double>::infinity()), "percentage");
}

TEST(PercentDeathTest, PercentageBeyondTheIntegerRangeIsFatal) {
  EXPECT_DEATH(percent(1e17), "percentage out of the integer range");
  EXPECT_DEATH(percent(-1e17), "percentage out of the integer range");
}

// --- tempPrimary ---

TEST(TempPrimary, MissingTemperatureIsADashInBothUnits) {
  EXPECT_EQ(tempPrimary(withTemperature(std::nullopt), false), "\u2014");
  EXPECT_EQ(tempPrimary(withTemperature(std::nullopt), true), "\u2014");
}

TEST(TempPrimary, SmallNegativeRoundsToNegativeZero) {
  EXPECT_EQ(tempPrimary(withTemperature(-0.4), false), "-0\u00B0C");
}

TEST(TempPrimary, WorkedExamples) {
  EXPECT_EQ(tempPrimary(withTemperature(47.5), false), "48\u00B0C");
  EXPECT_EQ(tempPrimary(withTemperature(47.5), true), "118\u00B0F");
}

TEST(TempPrimary, RoundsHalfAwayFromZero) {
  EXPECT_EQ(tempPrimary(withTemperature(46.5), false), "47\u00B0C");
  EXPECT_EQ(tempPrimary(withTemperature(-2.5), false), "-3\u00B0C");
  EXPECT_EQ(tempPrimary(withTemperature(46.49), false), "46\u00B0C");
}

TEST(TempPrimary, FahrenheitConversion) {
  EXPECT_EQ(tempPrimary(withTemperature(0.0), true), "32\u00B0F");
  EXPECT_EQ(tempPrimary(withTemperature(100.0), true), "212\u00B0F");
  EXPECT_EQ(tempPrimary(withTemperature(-40.0), true), "-40\u00B0F");
}

// --- formatPair ---

TEST(FormatPair, ExactlyThousandGibibytesSwitchesToTerabytes) {
  EXPECT_EQ(formatPair(0, 1000 * GiB), "0 / 0.98 TB");
}

TEST(FormatPair, NothingUsedOfSixteenGibibytes) {
  EXPECT_EQ(formatPair(0, 16 * GiB), "0 / 16 GB");
}

TEST(FormatPair, WorkedExamples) {
  EXPECT_EQ(formatPair(gib(8.53), 16 * GiB), "8.5 / 16 GB");
  EXPECT_EQ(formatPair(gib(234.2), gib(460.4)), "234 / 460 GB");
  EXPECT_EQ(formatPair(static_cast<std::int64_t>(0.45 * static_cast<double>(TiB)), gib(1862.6)),
            "0.45 / 1.82 TB");
}

TEST(FormatPair, JustBelowThousandGibibytesStaysInGigabytesWithoutFraction) {
  EXPECT_EQ(formatPair(gib(500.4), gib(999.9)), "500 / 1000 GB");
}

TEST(FormatPair, TotalAloneDecidesTheDigits) {
  // A total under 100 GB gives one digit to both numbers, even to a used value above 100.
  EXPECT_EQ(formatPair(gib(123.7), gib(64)), "123.7 / 64 GB");
  // A total of 100 GB or more gives none, even to a small used value.
  EXPECT_EQ(formatPair(gib(1.4), gib(100)), "1 / 100 GB");
}

TEST(FormatPair, HugeTotalsDropTheTerabyteFraction) {
  EXPECT_EQ(formatPair(120 * TiB + TiB / 2, 200 * TiB), "120 / 200 TB");
}

TEST(FormatPair, TrailingZerosAreDropped) {
  EXPECT_EQ(formatPair(8 * GiB, 16 * GiB), "8 / 16 GB");
  EXPECT_EQ(formatPair(TiB / 2, 2 * TiB), "0.5 / 2 TB");
}

TEST(FormatPair, RoundsHalfToEven) {
  // 2.25 and 2.75 are exact in binary; a tie goes to the even neighbour.
  EXPECT_EQ(formatPair(gib(2.25), gib(3.75)), "2.2 / 3.8 GB");
  EXPECT_EQ(formatPair(gib(0.25), gib(8)), "0.2 / 8 GB");
}

TEST(FormatPair, NoGroupingSeparator) {
  EXPECT_EQ(formatPair(gib(1500), gib(1500.0 * 1024.0)), "1 / 1500 TB");
}

// --- formatSwap ---

TEST(FormatSwap, OneByteBelowAGibibyteShowsAsMegabytes) {
  EXPECT_EQ(formatSwap((std::uint64_t{1} << 30) - 1), "1024M");
}

TEST(FormatSwap, ExactlyAGibibyteShowsAsGigabytes) {
  EXPECT_EQ(formatSwap(std::uint64_t{1} << 30), "1.0G");
}

TEST(FormatSwap, WorkedExamples) {
  EXPECT_EQ(formatSwap(3 * (std::uint64_t{1} << 29)), "1.5G");
  EXPECT_EQ(formatSwap(512 * static_cast<std::uint64_t>(MiB)), "512M");
  EXPECT_EQ(formatSwap(static_cast<std::uint64_t>(0.4 * MiB)), "0M");
}

// --- ramSecondary ---

TEST(RamSecondary, NoSwapInUseShowsNoSwapPart) {
  MetricSample sample;
  sample.memoryUsedBytes = static_cast<std::uint64_t>(gib(8.53));
  sample.memoryTotalBytes = 16 * static_cast<std::uint64_t>(GiB);
  sample.swapUsedBytes = 0;
  sample.swapTotalBytes = 4 * static_cast<std::uint64_t>(GiB);
  EXPECT_EQ(ramSecondary(sample), "8.5 / 16 GB");
}

TEST(RamSecondary, SwapInUseIsAppended) {
  MetricSample sample;
  sample.memoryUsedBytes = static_cast<std::uint64_t>(gib(8.53));
  sample.memoryTotalBytes = 16 * static_cast<std::uint64_t>(GiB);
  sample.swapUsedBytes = 512 * static_cast<std::uint64_t>(MiB);
  EXPECT_EQ(ramSecondary(sample), "8.5 / 16 GB \u00B7 swap 512M");
}

TEST(RamSecondary, NoMemoryTotalIsTheBlankPlaceholder) {
  MetricSample sample;
  sample.memoryUsedBytes = 5;
  sample.swapUsedBytes = 5;
  EXPECT_EQ(ramSecondary(sample), " ");
}

TEST(RamSecondaryDeathTest, CountBeyondTheSignedRangeIsFatal) {
  MetricSample sample;
  sample.memoryUsedBytes = 1;
  sample.memoryTotalBytes = std::numeric_limits<std::uint64_t>::max();
  EXPECT_DEATH(ramSecondary(sample), "byte count beyond the signed range");
}

// --- diskSecondary ---

TEST(DiskSecondary, ZeroOrNegativeTotalIsTheBlankPlaceholder) {
  MetricSample sample;
  sample.diskUsedBytes = 10;
  sample.diskTotalBytes = 0;
  EXPECT_EQ(diskSecondary(sample), " ");
  sample.diskTotalBytes = -1;
  EXPECT_EQ(diskSecondary(sample), " ");
}

TEST(DiskSecondary, ShowsThePair) {
  MetricSample sample;
  sample.diskUsedBytes = gib(234.2);
  sample.diskTotalBytes = gib(460.4);
  EXPECT_EQ(diskSecondary(sample), "234 / 460 GB");
}

// --- powerPrimary ---

TEST(PowerPrimary, MainsWithExactlyATenthOfAWattIsAC) {
  EXPECT_EQ(powerPrimary(withPower(PowerState::acIdle(), 0.1)), "AC");
}

TEST(PowerPrimary, MainsWithJustAboveATenthShowsTheDraw) {
  EXPECT_EQ(powerPrimary(withPower(PowerState::acIdle(), 0.11)), "0.1 W");
}

TEST(PowerPrimary, MainsWithoutReadingIsAC) {
  EXPECT_EQ(powerPrimary(withPower(PowerState::acIdle())), "AC");
}

TEST(PowerPrimary, UnknownSourceShowsTheDrawOrADash) {
  EXPECT_EQ(powerPrimary(withPower(PowerState::unknown(), 12.34)), "12.3 W");
  EXPECT_EQ(powerPrimary(withPower(PowerState::unknown(), 0.1)), "\u2014");
  EXPECT_EQ(powerPrimary(withPower(PowerState::unknown())), "\u2014");
}

TEST(PowerPrimary, BatteryAndChargingShowTheStatesWatts) {
  MetricSample sample = withPower(PowerState::discharging(7.4), 99.0);
  sample.powerWatts = -3.0;
  EXPECT_EQ(powerPrimary(sample), "7.4 W");
  EXPECT_EQ(powerPrimary(withPower(PowerState::charging(31.0), 99.0)), "+31.0 W");
}

// --- powerSecondary ---

TEST(PowerSecondary, UnknownWithoutBatteryIsEmpty) {
  EXPECT_EQ(powerSecondary(withPower(PowerState::unknown())), "");
}

TEST(PowerSecondary, WorkedExamples) {
  EXPECT_EQ(powerSecondary(withPower(PowerState::discharging(5), std::nullopt, 85)),
            "battery \u00B7 85%");
  EXPECT_EQ(powerSecondary(withPower(PowerState::charging(5), std::nullopt, 62)),
            "charging \u00B7 62%");
  EXPECT_EQ(powerSecondary(withPower(PowerState::acIdle(), std::nullopt, 100)),
            "plugged in \u00B7 100%");
}

TEST(PowerSecondary, WithoutBatteryOnlyTheWord) {
  EXPECT_EQ(powerSecondary(withPower(PowerState::acIdle())), "plugged in");
  EXPECT_EQ(powerSecondary(withPower(PowerState::discharging(1))), "battery");
}

TEST(PowerSecondary, UnknownWithBatteryOnlyThePercentage) {
  EXPECT_EQ(powerSecondary(withPower(PowerState::unknown(), std::nullopt, 40)), "40%");
}

// --- powerBarValue ---

TEST(PowerBarValue, ChargingAboveFiftyWattsIsFull) {
  EXPECT_EQ(powerBarValue(withPower(PowerState::charging(75))), 1.0);
}

TEST(PowerBarValue, MainsDrawIsOnATwentyWattScale) {
  EXPECT_EQ(powerBarValue(withPower(PowerState::acIdle(), 5.0)), 0.25);
  EXPECT_EQ(powerBarValue(withPower(PowerState::unknown(), 30.0)), 1.0);
  EXPECT_EQ(powerBarValue(withPower(PowerState::acIdle())), 0.0);
  EXPECT_EQ(powerBarValue(withPower(PowerState::unknown())), 0.0);
}

TEST(PowerBarValue, BatteryFlowIsOnAFiftyWattScale) {
  EXPECT_EQ(powerBarValue(withPower(PowerState::discharging(10), 40.0)), 0.2);
}

TEST(PowerBarValue, NaNIsFullAndNegativeIsNotRaised) {
  EXPECT_EQ(powerBarValue(withPower(PowerState::discharging(std::nan("")))), 1.0);
  EXPECT_EQ(powerBarValue(withPower(PowerState::charging(-5))), -0.1);
  EXPECT_EQ(powerBarValue(withPower(PowerState::acIdle(), std::nan(""))), 1.0);
}

// --- temperature bar ---

TEST(TemperatureBarValue, ScaleFromThirtyToHundredCelsius) {
  EXPECT_EQ(temperatureBarValue(withTemperature(30.0)), 0.0);
  EXPECT_EQ(temperatureBarValue(withTemperature(12.0)), 0.0);
  EXPECT_EQ(temperatureBarValue(withTemperature(65.0)), 0.5);
  EXPECT_EQ(temperatureBarValue(withTemperature(100.0)), 1.0);
  EXPECT_EQ(temperatureBarValue(withTemperature(130.0)), 1.0);
}

TEST(TemperatureBarValue, MissingIsZeroAndNaNIsFull) {
  EXPECT_EQ(temperatureBarValue(withTemperature(std::nullopt)), 0.0);
  EXPECT_EQ(temperatureBarValue(withTemperature(std::nan(""))), 1.0);
}

}  // namespace
}  // namespace brimly
