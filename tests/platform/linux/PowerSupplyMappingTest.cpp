#include "platform/linux/PowerSupplyMapping.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

PowerSupply supply(std::string name, std::string_view uevent) {
  return PowerSupply{std::move(name), parsePowerSupplyUevent(uevent)};
}

const PropertyDict& first(const PowerSupplySnapshot& snapshot) {
  EXPECT_FALSE(snapshot.descriptions.empty());
  EXPECT_TRUE(snapshot.descriptions.front().has_value());
  return *snapshot.descriptions.front();
}

constexpr const char* kAcOffline = "POWER_SUPPLY_TYPE=Mains\nPOWER_SUPPLY_ONLINE=0\n";
constexpr const char* kAcOnline = "POWER_SUPPLY_TYPE=Mains\nPOWER_SUPPLY_ONLINE=1\n";

TEST(PowerSupplyMapping, EnergyFamilyOnBatteryDerivesCurrentFromPower) {
  const auto snapshot = describePowerSupplies(
      {supply("AC", kAcOffline),
       supply("BAT0",
              "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Discharging\n"
              "POWER_SUPPLY_PRESENT=1\nPOWER_SUPPLY_VOLTAGE_NOW=12248000\n"
              "POWER_SUPPLY_POWER_NOW=8963000\nPOWER_SUPPLY_ENERGY_FULL=51360000\n"
              "POWER_SUPPLY_ENERGY_NOW=36920000\nPOWER_SUPPLY_CAPACITY=71\n")});
  ASSERT_EQ(snapshot.descriptions.size(), 2u);
  const PropertyDict& battery = first(snapshot);
  EXPECT_EQ(*battery.string("Name"), "BAT0");
  EXPECT_EQ(*battery.string("Power Source State"), "Battery Power");
  EXPECT_EQ(battery.boolean("Is Charging"), false);
  EXPECT_EQ(battery.integer("Current"), -732);  // 8.963 W / 12.248 V = 731.8 mA
  EXPECT_EQ(battery.integer("Voltage"), 12248);
  EXPECT_EQ(battery.integer("Current Capacity"), 71);
  EXPECT_EQ(battery.integer("Max Capacity"), 100);
  EXPECT_EQ(*snapshot.descriptions[1]->string("Name"), "AC");
}

TEST(PowerSupplyMapping, ChargeFamilyChargingOnMains) {
  const auto snapshot = describePowerSupplies(
      {supply("ADP1", kAcOnline),
       supply("BAT1",
              "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Charging\nPOWER_SUPPLY_PRESENT=1\n"
              "POWER_SUPPLY_VOLTAGE_NOW=12611000\nPOWER_SUPPLY_CURRENT_NOW=2876000\n"
              "POWER_SUPPLY_CHARGE_FULL=3650000\nPOWER_SUPPLY_CHARGE_NOW=1964000\n"
              "POWER_SUPPLY_CAPACITY=53\n")});
  const PropertyDict& battery = first(snapshot);
  EXPECT_EQ(*battery.string("Power Source State"), "AC Power");
  EXPECT_EQ(battery.boolean("Is Charging"), true);
  EXPECT_EQ(battery.integer("Current"), 2876);
  EXPECT_EQ(battery.integer("Voltage"), 12611);
  EXPECT_EQ(battery.integer("Current Capacity"), 53);
}

TEST(PowerSupplyMapping, AnUnsignedCurrentWhileDischargingBecomesNegative) {
  const auto snapshot = describePowerSupplies(
      {supply("BAT0",
              "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Discharging\n"
              "POWER_SUPPLY_CURRENT_NOW=1500000\nPOWER_SUPPLY_VOLTAGE_NOW=11000000\n"),
       supply("AC", kAcOffline)});
  EXPECT_EQ(first(snapshot).integer("Current"), -1500);
}

TEST(PowerSupplyMapping, ASignedGaugeKeepsItsDirectionFromTheStatus) {
  const auto discharging = describePowerSupplies(
      {supply("battery",
              "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Discharging\n"
              "POWER_SUPPLY_CURRENT_NOW=-1520000\nPOWER_SUPPLY_VOLTAGE_NOW=3812000\n")});
  EXPECT_EQ(first(discharging).integer("Current"), -1520);
  EXPECT_EQ(*first(discharging).string("Power Source State"), "Battery Power");
  // A driver that reports a negative current while charging still charges.
  const auto charging = describePowerSupplies(
      {supply("battery",
              "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Charging\n"
              "POWER_SUPPLY_CURRENT_NOW=-800000\nPOWER_SUPPLY_VOLTAGE_NOW=3812000\n")});
  EXPECT_EQ(first(charging).integer("Current"), 800);
  EXPECT_EQ(*first(charging).string("Power Source State"), "AC Power");
}

TEST(PowerSupplyMapping, OtherStatusesTakeTheirDirectionFromMains) {
  const char* battery =
      "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Unknown\n"
      "POWER_SUPPLY_CURRENT_NOW=500000\nPOWER_SUPPLY_VOLTAGE_NOW=12000000\n";
  EXPECT_EQ(first(describePowerSupplies({supply("BAT0", battery), supply("AC", kAcOnline)}))
                .integer("Current"),
            500);
  EXPECT_EQ(first(describePowerSupplies({supply("BAT0", battery), supply("AC", kAcOffline)}))
                .integer("Current"),
            -500);
}

TEST(PowerSupplyMapping, WithoutCurrentOrVoltageTheCurrentIsLeftOut) {
  const auto snapshot =
      describePowerSupplies({supply("BAT0",
                                    "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Discharging\n"
                                    "POWER_SUPPLY_POWER_NOW=5000000\n")});
  EXPECT_EQ(first(snapshot).find("Current"), nullptr);
  EXPECT_EQ(first(snapshot).find("Voltage"), nullptr);
}

TEST(PowerSupplyMapping, ADeviceScopeBatteryIsNotTheComputers) {
  const auto snapshot = describePowerSupplies(
      {supply("hidpp_battery_0",
              "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_ONLINE=1\nPOWER_SUPPLY_STATUS=Discharging\n"
              "POWER_SUPPLY_SCOPE=Device\nPOWER_SUPPLY_CAPACITY_LEVEL=Normal\n")});
  EXPECT_TRUE(snapshot.descriptions.empty());
  EXPECT_EQ(snapshot.smartBattery, std::nullopt);
}

TEST(PowerSupplyMapping, AnEmptyBayIsLeftOut) {
  const auto snapshot = describePowerSupplies(
      {supply("BAT0", "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Full\n"),
       supply("BAT1", "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_PRESENT=0\n")});
  ASSERT_EQ(snapshot.descriptions.size(), 1u);
  EXPECT_EQ(*first(snapshot).string("Name"), "BAT0");
}

TEST(PowerSupplyMapping, NoSupplyGivesAnEmptyList) {
  const auto snapshot = describePowerSupplies({});
  EXPECT_TRUE(snapshot.descriptions.empty());
  EXPECT_EQ(snapshot.smartBattery, std::nullopt);
}

TEST(PowerSupplyMapping, ADesktopOnMainsIsDescribedByItsLineSupply) {
  const auto snapshot = describePowerSupplies({supply("AC", kAcOnline)});
  const PropertyDict& line = first(snapshot);
  EXPECT_EQ(*line.string("Power Source State"), "AC Power");
  EXPECT_EQ(line.boolean("Is Charging"), false);
  EXPECT_EQ(line.find("Current"), nullptr);
  EXPECT_EQ(line.integer("Online"), 1);
  EXPECT_EQ(snapshot.smartBattery, std::nullopt);
}

TEST(PowerSupplyMapping, AUsbChargerCountsAsMains) {
  const auto snapshot = describePowerSupplies(
      {supply("BAT0", "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Charging\n"),
       supply("ucsi-source-psy-USBC000:001", "POWER_SUPPLY_TYPE=USB\nPOWER_SUPPLY_ONLINE=1\n")});
  EXPECT_EQ(*first(snapshot).string("Power Source State"), "AC Power");
}

TEST(PowerSupplyMapping, WithoutLineSuppliesAFullBatteryMeansMains) {
  const auto full = describePowerSupplies(
      {supply("BAT0", "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Full\n")});
  EXPECT_EQ(*first(full).string("Power Source State"), "AC Power");
  const auto notCharging = describePowerSupplies(
      {supply("BAT0", "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Not charging\n")});
  EXPECT_EQ(*first(notCharging).string("Power Source State"), "AC Power");
  EXPECT_EQ(first(notCharging).boolean("Is Charging"), false);
}

TEST(PowerSupplyMapping, ChargeLevelFallsBackToEnergyThenCharge) {
  const auto energy = describePowerSupplies(
      {supply("BAT0",
              "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_CAPACITY=broken\n"
              "POWER_SUPPLY_ENERGY_NOW=36920000\nPOWER_SUPPLY_ENERGY_FULL=51360000\n")});
  EXPECT_EQ(first(energy).integer("Current Capacity"), 36920000);
  EXPECT_EQ(first(energy).integer("Max Capacity"), 51360000);
  const auto charge = describePowerSupplies(
      {supply("BAT0",
              "POWER_SUPPLY_TYPE=Battery\n"
              "POWER_SUPPLY_CHARGE_NOW=1964000\nPOWER_SUPPLY_CHARGE_FULL=3650000\n")});
  EXPECT_EQ(first(charge).integer("Current Capacity"), 1964000);
  EXPECT_EQ(first(charge).integer("Max Capacity"), 3650000);
  const auto none = describePowerSupplies({supply("BAT0", "POWER_SUPPLY_TYPE=Battery\n")});
  EXPECT_EQ(first(none).find("Current Capacity"), nullptr);
}

TEST(PowerSupplyMapping, TwoBatteriesGetACombinedDescriptionFirst) {
  const auto snapshot = describePowerSupplies(
      {supply("ADP1", kAcOnline),
       supply("BAT0",
              "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Charging\n"
              "POWER_SUPPLY_VOLTAGE_NOW=12000000\nPOWER_SUPPLY_POWER_NOW=10000000\n"
              "POWER_SUPPLY_ENERGY_NOW=20000000\nPOWER_SUPPLY_ENERGY_FULL=40000000\n"),
       supply("BAT1",
              "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Not charging\n"
              "POWER_SUPPLY_VOLTAGE_NOW=12500000\nPOWER_SUPPLY_POWER_NOW=0\n"
              "POWER_SUPPLY_ENERGY_NOW=30000000\nPOWER_SUPPLY_ENERGY_FULL=40000000\n")});
  ASSERT_EQ(snapshot.descriptions.size(), 4u);
  const PropertyDict& combined = first(snapshot);
  EXPECT_EQ(*combined.string("Name"), "Combined");
  EXPECT_EQ(combined.boolean("Is Charging"), true);
  EXPECT_EQ(combined.integer("Voltage"), 12000);
  EXPECT_EQ(combined.integer("Current"), 833);  // 10 W at 12 V
  EXPECT_EQ(combined.integer("Current Capacity"), 50000000);
  EXPECT_EQ(combined.integer("Max Capacity"), 80000000);
  EXPECT_EQ(*snapshot.descriptions[1]->string("Name"), "BAT0");
  EXPECT_EQ(*snapshot.descriptions[2]->string("Name"), "BAT1");
  EXPECT_EQ(*snapshot.descriptions[3]->string("Name"), "ADP1");
}

TEST(PowerSupplyMapping, CombinedDischargeAddsBothBatteriesDrain) {
  const auto snapshot = describePowerSupplies(
      {supply("BAT0",
              "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Discharging\n"
              "POWER_SUPPLY_VOLTAGE_NOW=10000000\nPOWER_SUPPLY_CURRENT_NOW=500000\n"
              "POWER_SUPPLY_CAPACITY=40\n"),
       supply("BAT1",
              "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Discharging\n"
              "POWER_SUPPLY_VOLTAGE_NOW=20000000\nPOWER_SUPPLY_CURRENT_NOW=250000\n"
              "POWER_SUPPLY_CAPACITY=90\n"),
       supply("AC", kAcOffline)});
  const PropertyDict& combined = first(snapshot);
  // 5 W + 5 W drawn, expressed at the first battery's 10 V.
  EXPECT_EQ(combined.integer("Current"), -1000);
  EXPECT_EQ(combined.integer("Current Capacity"), 130);
  EXPECT_EQ(combined.integer("Max Capacity"), 200);
}

TEST(PowerSupplyMapping, SmartBatteryPropertiesComeFromTheFirstBattery) {
  const auto snapshot = describePowerSupplies(
      {supply("BAT0",
              "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Discharging\n"
              "POWER_SUPPLY_VOLTAGE_NOW=12611000\nPOWER_SUPPLY_CURRENT_NOW=2876000\n"
              "POWER_SUPPLY_CYCLE_COUNT=112\nPOWER_SUPPLY_CHARGE_FULL_DESIGN=3817000\n"
              "POWER_SUPPLY_CHARGE_FULL=3650000\n"),
       supply("AC", kAcOffline)});
  ASSERT_TRUE(snapshot.smartBattery.has_value());
  EXPECT_EQ(snapshot.smartBattery->integer("Voltage"), 12611);
  EXPECT_EQ(snapshot.smartBattery->integer("Amperage"), -2876);
  EXPECT_EQ(snapshot.smartBattery->integer("InstantAmperage"), -2876);
  EXPECT_EQ(snapshot.smartBattery->integer("CycleCount"), 112);
  EXPECT_EQ(snapshot.smartBattery->integer("DesignCapacity"), 3817);
  EXPECT_EQ(snapshot.smartBattery->integer("MaxCapacity"), 3650);
}

TEST(PowerSupplyMapping, ZeroOrNegativeVoltageIsNotAVoltage) {
  const auto snapshot =
      describePowerSupplies({supply("BAT0",
                                    "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_VOLTAGE_NOW=0\n"
                                    "POWER_SUPPLY_POWER_NOW=5000000\n")});
  EXPECT_EQ(first(snapshot).find("Voltage"), nullptr);
  EXPECT_EQ(snapshot.smartBattery->find("Voltage"), nullptr);
}

TEST(PowerSupplyMapping, ExtremeNumbersNeverOverflow) {
  const auto snapshot = describePowerSupplies(
      {supply("BAT0",
              "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Discharging\n"
              "POWER_SUPPLY_VOLTAGE_NOW=1\nPOWER_SUPPLY_POWER_NOW=-9223372036854775808\n"
              "POWER_SUPPLY_ENERGY_NOW=9223372036854775807\n"
              "POWER_SUPPLY_ENERGY_FULL=9223372036854775807\n"),
       supply("BAT1",
              "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Discharging\n"
              "POWER_SUPPLY_ENERGY_NOW=9223372036854775807\n"
              "POWER_SUPPLY_ENERGY_FULL=9223372036854775807\n")});
  ASSERT_EQ(snapshot.descriptions.size(), 3u);
  EXPECT_LT(*snapshot.descriptions[1]->integer("Current"), 0);
  // The sums overflow, so the combined description has no charge level.
  EXPECT_EQ(first(snapshot).find("Current Capacity"), nullptr);
}

}  // namespace
}  // namespace brimly
