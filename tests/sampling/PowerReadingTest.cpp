#include "sampling/PowerReading.h"

#include <gtest/gtest.h>

#include <cmath>

namespace brimly {
namespace {

using Sources = std::vector<std::optional<PropertyDict>>;

TEST(PowerReading, ChargingOnMains) {
  const auto reading =
      PowerReading::fromDescription(PropertyDict{{"Power Source State", "AC Power"},
                                                 {"Is Charging", true},
                                                 {"Current", 1000},
                                                 {"Voltage", 12000}},
                                    0);
  EXPECT_DOUBLE_EQ(reading.watts, 12.0);
  EXPECT_EQ(reading.state, PowerState::charging(12.0));
}

TEST(PowerReading, OnMainsWithoutChargingIsIdle) {
  const auto reading =
      PowerReading::fromDescription(PropertyDict{{"Power Source State", "AC Power"},
                                                 {"Is Charging", false},
                                                 {"Current", 1000},
                                                 {"Voltage", 12000}},
                                    0);
  EXPECT_EQ(reading.watts, 0.0);
  EXPECT_EQ(reading.state, PowerState::acIdle());
}

TEST(PowerReading, ChargingAtATrickleIsIdle) {
  // 40 mA at 12000 mV is 0.48 W.
  const auto reading =
      PowerReading::fromDescription(PropertyDict{{"Power Source State", "AC Power"},
                                                 {"Is Charging", true},
                                                 {"Current", 40},
                                                 {"Voltage", 12000}},
                                    0);
  EXPECT_EQ(reading.watts, 0.0);
  EXPECT_EQ(reading.state, PowerState::acIdle());
}

TEST(PowerReading, ChargingAtExactlyHalfAWattIsIdle) {
  const auto reading =
      PowerReading::fromDescription(PropertyDict{{"Power Source State", "AC Power"},
                                                 {"Is Charging", true},
                                                 {"Current", 50},
                                                 {"Voltage", 10000}},
                                    0);
  EXPECT_EQ(reading.state, PowerState::acIdle());
}

TEST(PowerReading, AnyOtherStateIsDischarging) {
  const auto reading = PowerReading::fromDescription(
      PropertyDict{{"Power Source State", "Battery Power"}, {"Current", -1500}, {"Voltage", 11000}},
      0);
  EXPECT_DOUBLE_EQ(reading.watts, -16.5);
  EXPECT_EQ(reading.state, PowerState::discharging(16.5));
}

TEST(PowerReading, StateNameIsMatchedExactly) {
  const auto reading = PowerReading::fromDescription(
      PropertyDict{{"Power Source State", "ac power"}, {"Current", 100}, {"Voltage", 10000}}, 0);
  EXPECT_EQ(reading.state, PowerState::discharging(1.0));
}

TEST(PowerReading, MissingOrNonStringStateIsDischarging) {
  EXPECT_EQ(
      PowerReading::fromDescription(PropertyDict{{"Current", 100}, {"Voltage", 10000}}, 0).state,
      PowerState::discharging(1.0));
  EXPECT_EQ(PowerReading::fromDescription(
                PropertyDict{{"Power Source State", 1}, {"Current", 100}, {"Voltage", 10000}}, 0)
                .state,
            PowerState::discharging(1.0));
}

TEST(PowerReading, InstantAmperageAndRegistryVoltageStandIn) {
  const auto reading =
      PowerReading::fromDescription(PropertyDict{{"InstantAmperage", -900}}, 12500);
  EXPECT_DOUBLE_EQ(reading.watts, -11.25);
  EXPECT_EQ(reading.state, PowerState::discharging(11.25));
}

TEST(PowerReading, NonIntegerCurrentFallsBackToInstantAmperage) {
  const auto reading = PowerReading::fromDescription(
      PropertyDict{{"Current", 1500.0}, {"InstantAmperage", -1000}, {"Voltage", 10000}}, 0);
  EXPECT_DOUBLE_EQ(reading.watts, -10.0);
}

TEST(PowerReading, DescriptionVoltageOfZeroLeavesTheRegistryVoltage) {
  const auto reading =
      PowerReading::fromDescription(PropertyDict{{"Current", -1000}, {"Voltage", 0}}, 11000);
  EXPECT_DOUBLE_EQ(reading.watts, -11.0);
}

TEST(PowerReading, NoCurrentOnBatteryIsNegativeZeroDischarging) {
  const auto reading =
      PowerReading::fromDescription(PropertyDict{{"Power Source State", "Battery Power"}}, 12000);
  EXPECT_EQ(reading.watts, 0.0);
  EXPECT_TRUE(std::signbit(reading.watts));
  EXPECT_EQ(reading.state, PowerState::discharging(0.0));
}

TEST(PowerReading, NonBooleanChargingFlagCountsAsNotCharging) {
  const auto reading =
      PowerReading::fromDescription(PropertyDict{{"Power Source State", "AC Power"},
                                                 {"Is Charging", 1},
                                                 {"Current", 1000},
                                                 {"Voltage", 12000}},
                                    0);
  EXPECT_EQ(reading.state, PowerState::acIdle());
}

TEST(PowerReading, BatteryPercentRoundsHalvesAwayFromZero) {
  EXPECT_EQ(PowerReading::batteryPercentFrom(
                PropertyDict{{"Current Capacity", 81}, {"Max Capacity", 100}}),
            81);
  EXPECT_EQ(PowerReading::batteryPercentFrom(
                PropertyDict{{"Current Capacity", 1}, {"Max Capacity", 200}}),
            1);
  EXPECT_EQ(
      PowerReading::batteryPercentFrom(PropertyDict{{"Current Capacity", 2}, {"Max Capacity", 3}}),
      67);
}

TEST(PowerReading, BatteryPercentIsAbsentWithoutAUsableMaximum) {
  EXPECT_FALSE(
      PowerReading::batteryPercentFrom(PropertyDict{{"Current Capacity", 81}, {"Max Capacity", 0}})
          .has_value());
  EXPECT_FALSE(
      PowerReading::batteryPercentFrom(PropertyDict{{"Current Capacity", 81}}).has_value());
  EXPECT_FALSE(PowerReading::batteryPercentFrom(
                   PropertyDict{{"Current Capacity", 81.0}, {"Max Capacity", 100}})
                   .has_value());
}

TEST(PowerReading, BatteryPercentIsNotClamped) {
  EXPECT_EQ(PowerReading::batteryPercentFrom(
                PropertyDict{{"Current Capacity", 4300}, {"Max Capacity", 4000}}),
            108);
}

TEST(PowerReading, BatteryPercentTooLargeToCountIsAbsent) {
  EXPECT_FALSE(PowerReading::batteryPercentFrom(
                   PropertyDict{{"Current Capacity", std::int64_t{9'000'000'000'000'000'000}},
                                {"Max Capacity", 1}})
                   .has_value());
}

TEST(PowerReading, DescriptionCarriesTheBatteryPercent) {
  const auto reading = PowerReading::fromDescription(
      PropertyDict{{"Current Capacity", 81}, {"Max Capacity", 100}, {"Current", -1}}, 1000);
  EXPECT_EQ(reading.batteryPercent, 81);
}

TEST(PowerReading, NoSnapshotOrEmptyListIsUnknown) {
  int voltageReads = 0;
  const auto voltage = [&] {
    ++voltageReads;
    return std::int64_t{12000};
  };
  EXPECT_EQ(PowerReading::fromSources(std::nullopt, voltage), PowerReading{});
  EXPECT_EQ(PowerReading::fromSources(Sources{}, voltage), PowerReading{});
  EXPECT_EQ(voltageReads, 0);
  EXPECT_EQ(PowerReading::fromSources(Sources{}, voltage).state, PowerState::unknown());
}

TEST(PowerReading, NoUsableDescriptionIsUnknownWithoutAPercent) {
  const auto reading = PowerReading::fromSources(Sources{std::nullopt, std::nullopt},
                                                 [] { return std::int64_t{12000}; });
  EXPECT_EQ(reading.state, PowerState::unknown());
  EXPECT_EQ(reading.watts, 0.0);
  EXPECT_FALSE(reading.batteryPercent.has_value());
}

TEST(PowerReading, FirstUsableSourceDecidesAndRegistryIsAskedOnce) {
  int voltageReads = 0;
  const Sources sources{
      std::nullopt,
      PropertyDict{{"Power Source State", "Battery Power"}, {"Current", -1000}},
      PropertyDict{{"Power Source State", "AC Power"}, {"Current", 5000}, {"Voltage", 120000}},
  };
  const auto reading = PowerReading::fromSources(sources, [&] {
    ++voltageReads;
    return std::int64_t{11500};
  });
  EXPECT_DOUBLE_EQ(reading.watts, -11.5);
  EXPECT_EQ(reading.state, PowerState::discharging(11.5));
  EXPECT_EQ(voltageReads, 1);
}

TEST(PowerReading, RegistryVoltageNeedsAPositiveInteger) {
  EXPECT_EQ(PowerReading::batteryVoltageMV(std::nullopt), 0);
  EXPECT_EQ(PowerReading::batteryVoltageMV(PropertyDict{}), 0);
  EXPECT_EQ(PowerReading::batteryVoltageMV(PropertyDict{{"Voltage", 12.5}}), 0);
  EXPECT_EQ(PowerReading::batteryVoltageMV(PropertyDict{{"Voltage", 0}}), 0);
  EXPECT_EQ(PowerReading::batteryVoltageMV(PropertyDict{{"Voltage", -3}}), 0);
  EXPECT_EQ(PowerReading::batteryVoltageMV(PropertyDict{{"Voltage", 12500}}), 12500);
}

}  // namespace
}  // namespace brimly
