#include "platform/linux/LinuxPowerSourcePort.h"

#include <gtest/gtest.h>

#include "FakePlatform.h"
#include "LinuxTestSupport.h"
#include "TemporaryTree.h"
#include "platform/linux/RootedFileSystem.h"

namespace brimly {
namespace {

using testing::recordingFixture;
using Descriptions = std::vector<std::optional<PropertyDict>>;

// For the readings of one moment, taken together.
const testing::FakeClock stillClock;

Descriptions descriptionsOf(std::string_view fixture) {
  auto descriptions =
      LinuxPowerSourcePort(recordingFixture(fixture), stillClock).readPowerSourceDescriptions();
  EXPECT_TRUE(descriptions.has_value());
  return descriptions.value_or(Descriptions{});
}

std::vector<std::string> namesOf(const Descriptions& descriptions) {
  std::vector<std::string> names;
  for (const auto& description : descriptions)
    names.push_back(*description->string("Name"));
  return names;
}

TEST(LinuxPowerSourcePort, IntelLaptopDischargingWithAnUnsignedCurrent) {
  const Descriptions descriptions = descriptionsOf("intel-laptop-discharging");
  EXPECT_EQ(namesOf(descriptions), (std::vector<std::string>{"BAT0", "AC"}));
  const PropertyDict& battery = *descriptions[0];
  EXPECT_EQ(*battery.string("Power Source State"), "Battery Power");
  EXPECT_EQ(battery.boolean("Is Charging"), false);
  EXPECT_EQ(battery.integer("Current"), -1450);
  EXPECT_EQ(battery.integer("Voltage"), 11850);
  EXPECT_EQ(battery.integer("Current Capacity"), 70);
  EXPECT_EQ(battery.integer("Max Capacity"), 100);
  EXPECT_EQ(*battery.string("Status"), "Discharging");
}

TEST(LinuxPowerSourcePort, IntelLaptopSmartBattery) {
  const auto properties =
      LinuxPowerSourcePort(recordingFixture("intel-laptop-discharging"), stillClock)
          .readSmartBatteryProperties();
  const PropertyDict expected{
      {"Voltage", std::int64_t{11850}},         {"Amperage", std::int64_t{-1450}},
      {"InstantAmperage", std::int64_t{-1450}}, {"CycleCount", std::int64_t{211}},
      {"DesignCapacity", std::int64_t{4400}},   {"MaxCapacity", std::int64_t{4100}}};
  EXPECT_EQ(properties, expected);
}

TEST(LinuxPowerSourcePort, ReadsEachUeventOnceAndNoAttributeFile) {
  const auto files = recordingFixture("intel-laptop-discharging");
  LinuxPowerSourcePort(files, stillClock).readPowerSourceDescriptions();
  EXPECT_EQ(files->readsOf("sys/class/power_supply/BAT0/uevent"), 1);
  EXPECT_EQ(files->readsOf("sys/class/power_supply/AC/uevent"), 1);
  EXPECT_EQ(files->totalReads(), 2);
}

TEST(LinuxPowerSourcePort, AmdLaptopChargingDerivesCurrentFromPower) {
  const Descriptions descriptions = descriptionsOf("amd-laptop-charging");
  EXPECT_EQ(namesOf(descriptions),
            (std::vector<std::string>{"BAT1", "ADP1", "ucsi-source-psy-USBC000:001"}));
  const PropertyDict& battery = *descriptions[0];
  EXPECT_EQ(*battery.string("Power Source State"), "AC Power");
  EXPECT_EQ(battery.boolean("Is Charging"), true);
  EXPECT_EQ(battery.integer("Current"), 1863);  // 31.54 W / 16.932 V
  EXPECT_EQ(battery.integer("Voltage"), 16932);
  EXPECT_EQ(battery.integer("Current Capacity"), 77);
}

TEST(LinuxPowerSourcePort, AmdLaptopSmartBatteryHasNoChargeCapacities) {
  const auto properties = LinuxPowerSourcePort(recordingFixture("amd-laptop-charging"), stillClock)
                              .readSmartBatteryProperties();
  ASSERT_TRUE(properties.has_value());
  EXPECT_EQ(properties->integer("Voltage"), 16932);
  EXPECT_EQ(properties->integer("Amperage"), 1863);
  EXPECT_EQ(properties->integer("CycleCount"), 48);
  EXPECT_EQ(properties->find("DesignCapacity"), nullptr);  // energy-counting driver
}

TEST(LinuxPowerSourcePort, ADesktopWithOnlyAWirelessMouseHasNoPowerSource) {
  EXPECT_TRUE(descriptionsOf("nvidia-desktop").empty());
  EXPECT_EQ(LinuxPowerSourcePort(recordingFixture("nvidia-desktop"), stillClock)
                .readSmartBatteryProperties(),
            std::nullopt);
}

TEST(LinuxPowerSourcePort, AVirtualMachineHasNoPowerSource) {
  EXPECT_TRUE(descriptionsOf("vm-bare").empty());
  EXPECT_EQ(
      LinuxPowerSourcePort(recordingFixture("vm-bare"), stillClock).readSmartBatteryProperties(),
      std::nullopt);
}

TEST(LinuxPowerSourcePort, AFullBatteryOnMainsDrawsNothing) {
  const Descriptions descriptions = descriptionsOf("suspended-dgpu");
  ASSERT_EQ(descriptions.size(), 2u);
  const PropertyDict& battery = *descriptions[0];
  EXPECT_EQ(*battery.string("Power Source State"), "AC Power");
  EXPECT_EQ(battery.boolean("Is Charging"), false);
  EXPECT_EQ(battery.integer("Current"), 0);
  EXPECT_EQ(battery.integer("Current Capacity"), 100);
}

TEST(LinuxPowerSourcePort, BrokenContentFallsBackToFilesAndLeavesGarbageOut) {
  const auto files = recordingFixture("broken");
  const auto descriptions = LinuxPowerSourcePort(files, stillClock).readPowerSourceDescriptions();
  ASSERT_TRUE(descriptions.has_value());
  // AC reports garbage for "online", so it says nothing about mains; BAT1 cannot be read.
  ASSERT_EQ(descriptions->size(), 1u);
  const PropertyDict& battery = *(*descriptions)[0];
  EXPECT_EQ(*battery.string("Name"), "BAT0");
  EXPECT_EQ(*battery.string("Power Source State"), "Battery Power");
  EXPECT_EQ(battery.find("Current"), nullptr);
  EXPECT_EQ(battery.find("Voltage"), nullptr);
  EXPECT_EQ(battery.find("Current Capacity"), nullptr);
  EXPECT_EQ(files->readsOf("sys/class/power_supply/BAT0/status"), 1);  // empty uevent
}

TEST(LinuxPowerSourcePort, NoPowerSupplyDirectoryGivesAnEmptyList) {
  testing::TemporaryTree tree;
  LinuxPowerSourcePort port(std::make_shared<RootedFileSystem>(tree.root()), stillClock);
  const auto descriptions = port.readPowerSourceDescriptions();
  ASSERT_TRUE(descriptions.has_value());
  EXPECT_TRUE(descriptions->empty());
  EXPECT_EQ(port.readSmartBatteryProperties(), std::nullopt);
}

TEST(LinuxPowerSourcePort, FollowsPluggingIn) {
  testing::TemporaryTree tree;
  tree.write("sys/class/power_supply/AC/uevent",
             "POWER_SUPPLY_TYPE=Mains\nPOWER_SUPPLY_ONLINE=0\n");
  tree.write("sys/class/power_supply/BAT0/uevent",
             "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Discharging\n"
             "POWER_SUPPLY_CURRENT_NOW=1000000\nPOWER_SUPPLY_VOLTAGE_NOW=12000000\n");
  LinuxPowerSourcePort port(std::make_shared<RootedFileSystem>(tree.root()), stillClock);
  EXPECT_EQ((*port.readPowerSourceDescriptions())[0]->integer("Current"), -1000);
  tree.write("sys/class/power_supply/AC/uevent",
             "POWER_SUPPLY_TYPE=Mains\nPOWER_SUPPLY_ONLINE=1\n");
  tree.write("sys/class/power_supply/BAT0/uevent",
             "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Charging\n"
             "POWER_SUPPLY_CURRENT_NOW=1000000\nPOWER_SUPPLY_VOLTAGE_NOW=12000000\n");
  const PropertyDict battery = *(*port.readPowerSourceDescriptions())[0];
  EXPECT_EQ(battery.integer("Current"), 1000);
  EXPECT_EQ(*battery.string("Power Source State"), "AC Power");
  EXPECT_EQ(battery.boolean("Is Charging"), true);
}

constexpr const char* kMains = "POWER_SUPPLY_TYPE=Mains\nPOWER_SUPPLY_ONLINE=0\n";
constexpr const char* kBattery =
    "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Discharging\n"
    "POWER_SUPPLY_CURRENT_NOW=1000000\nPOWER_SUPPLY_VOLTAGE_NOW=12000000\n";

std::vector<std::string> namesReadBy(LinuxPowerSourcePort& port) {
  return namesOf(port.readPowerSourceDescriptions().value_or(Descriptions{}));
}

TEST(LinuxPowerSourcePort, BetweenListingsOnlyTheSuppliesThemselvesAreRead) {
  const auto files = recordingFixture("intel-laptop-discharging");
  testing::FakeClock clock;
  LinuxPowerSourcePort port(files, clock);
  port.readPowerSourceDescriptions();
  clock.advance(ListingRefresh::intervalSeconds - 1.0);
  files->forget();
  EXPECT_EQ(namesOf(*port.readPowerSourceDescriptions()), (std::vector<std::string>{"BAT0", "AC"}));
  EXPECT_EQ(files->listingsOf("sys/class/power_supply"), 0);
  EXPECT_EQ(files->readsOf("sys/class/power_supply/BAT0/uevent"), 1);
  EXPECT_EQ(files->readsOf("sys/class/power_supply/AC/uevent"), 1);
  EXPECT_EQ(files->totalReads(), 2);
}

TEST(LinuxPowerSourcePort, ABatteryPluggedInShowsOnceTheListingIsDue) {
  testing::TemporaryTree tree;
  tree.write("sys/class/power_supply/AC/uevent", kMains);
  testing::FakeClock clock;
  LinuxPowerSourcePort port(std::make_shared<RootedFileSystem>(tree.root()), clock);
  EXPECT_EQ(namesReadBy(port), (std::vector<std::string>{"AC"}));
  tree.write("sys/class/power_supply/BAT0/uevent", kBattery);
  clock.advance(ListingRefresh::intervalSeconds - 1.0);
  EXPECT_EQ(namesReadBy(port), (std::vector<std::string>{"AC"}));
  clock.advance(1.0);
  EXPECT_EQ(namesReadBy(port), (std::vector<std::string>{"BAT0", "AC"}));
}

TEST(LinuxPowerSourcePort, ASupplyThatGoesAwayIsNeitherShownNorLookedForAgain) {
  testing::TemporaryTree tree;
  tree.write("sys/class/power_supply/AC/uevent", kMains);
  tree.write("sys/class/power_supply/BAT0/uevent", kBattery);
  const auto files = std::make_shared<testing::RecordingFileSystem>(tree.root());
  LinuxPowerSourcePort port(files, stillClock);
  EXPECT_EQ(namesReadBy(port), (std::vector<std::string>{"BAT0", "AC"}));
  tree.remove("sys/class/power_supply/BAT0");
  EXPECT_EQ(namesReadBy(port), (std::vector<std::string>{"AC"}));
  files->forget();
  EXPECT_EQ(namesReadBy(port), (std::vector<std::string>{"AC"}));
  EXPECT_EQ(files->listingsOf("sys/class/power_supply"), 1);  // at once, not half a minute later
  EXPECT_TRUE(files->readsEndingIn("BAT0/uevent").empty());
}

}  // namespace
}  // namespace brimly
