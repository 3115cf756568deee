#include <gtest/gtest.h>

#include "AuditHarness.h"

namespace brimly {
namespace {

using testing::AuditHarness;
using testing::FakeMachine;

// A desktop on mains: one mains source, no battery entry.
void makeDesktop(FakeMachine& machine) {
  machine.powerSources = std::vector<std::optional<PropertyDict>>{
      PropertyDict{{"Power Source State", "AC Power"}, {"Name", "AC"}, {"Is Charging", false}}};
  machine.smartBattery.reset();
}

TEST(BatterySection, MacOSListsTheSourceSortedByKeyThenTheBatteryEntry) {
  AuditHarness harness(ReportFlavour::macOS);
  EXPECT_EQ(harness.section(Audit::dumpBattery),
            "\n"
            "┌─ BATTERY / POWER SOURCE (IOPS)\n"
            "│  Current: -1500\n"
            "│  Current Capacity: 81\n"
            "│  Is Charging: false\n"
            "│  Max Capacity: 100\n"
            "│  Name: InternalBattery-0\n"
            "│  Power Source State: Battery Power\n"
            "│  Voltage: 11000\n"
            "└─\n"
            "\n"
            "┌─ AppleSmartBattery IORegistry — real voltage source\n"
            "│  Voltage: 11000\n"
            "│  Amperage: -1500\n"
            "│  InstantAmperage: -1480\n"
            "│  CycleCount: 112\n"
            "│  DesignCapacity: 4382\n"
            "│  MaxCapacity: 4101\n"
            "└─\n");
}

TEST(BatterySection, LinuxNamesSysfsAndAddsItsCompareCommand) {
  AuditHarness harness(ReportFlavour::gnuLinux);
  EXPECT_EQ(harness.section(Audit::dumpBattery),
            "\n"
            "┌─ BATTERY / POWER SOURCE (/sys/class/power_supply)\n"
            "│  Current: -1500\n"
            "│  Current Capacity: 81\n"
            "│  Is Charging: false\n"
            "│  Max Capacity: 100\n"
            "│  Name: InternalBattery-0\n"
            "│  Power Source State: Battery Power\n"
            "│  Voltage: 11000\n"
            "│  Compare: cat /sys/class/power_supply/*/uevent ; upower -d\n"
            "└─\n"
            "\n"
            "┌─ First battery's own attributes (/sys/class/power_supply/<battery>) — real voltage "
            "source\n"
            "│  Voltage: 11000\n"
            "│  Amperage: -1500\n"
            "│  InstantAmperage: -1480\n"
            "│  CycleCount: 112\n"
            "│  DesignCapacity: 4382\n"
            "│  MaxCapacity: 4101\n"
            "└─\n");
}

TEST(BatterySection, WithoutABatteryListsTheMainsSourceAndAnEmptyBatteryBox) {
  AuditHarness mac(ReportFlavour::macOS);
  mac.platform.change(makeDesktop);
  EXPECT_EQ(mac.section(Audit::dumpBattery),
            "\n"
            "┌─ BATTERY / POWER SOURCE (IOPS)\n"
            "│  Is Charging: false\n"
            "│  Name: AC\n"
            "│  Power Source State: AC Power\n"
            "└─\n"
            "\n"
            "┌─ AppleSmartBattery IORegistry — real voltage source\n"
            "└─\n");

  AuditHarness linuxHarness(ReportFlavour::gnuLinux);
  linuxHarness.platform.change(makeDesktop);
  EXPECT_EQ(linuxHarness.section(Audit::dumpBattery),
            "\n"
            "┌─ BATTERY / POWER SOURCE (/sys/class/power_supply)\n"
            "│  Is Charging: false\n"
            "│  Name: AC\n"
            "│  Power Source State: AC Power\n"
            "│  Compare: cat /sys/class/power_supply/*/uevent ; upower -d\n"
            "└─\n"
            "\n"
            "┌─ First battery's own attributes (/sys/class/power_supply/<battery>) — real voltage "
            "source\n"
            "└─\n");
}

TEST(BatterySection, NoSourceListEndsTheSectionBeforeTheBatteryEntry) {
  AuditHarness mac(ReportFlavour::macOS);
  mac.platform.change([](FakeMachine& m) { m.powerSources.reset(); });
  EXPECT_EQ(mac.section(Audit::dumpBattery),
            "\n┌─ BATTERY / POWER SOURCE (IOPS)\n│  ❌ no sources\n└─\n");

  AuditHarness linuxHarness(ReportFlavour::gnuLinux);
  linuxHarness.platform.change([](FakeMachine& m) { m.powerSources.reset(); });
  EXPECT_EQ(linuxHarness.section(Audit::dumpBattery),
            "\n┌─ BATTERY / POWER SOURCE (/sys/class/power_supply)\n"
            "│  ❌ no power supplies under /sys/class/power_supply\n└─\n");
}

TEST(BatterySection, AnEmptyListIsAnEmptyBoxOnMacOSAndSaidPlainlyOnLinux) {
  AuditHarness mac(ReportFlavour::macOS);
  mac.platform.change([](FakeMachine& m) {
    m.powerSources = std::vector<std::optional<PropertyDict>>{};
    m.smartBattery.reset();
  });
  EXPECT_EQ(mac.section(Audit::dumpBattery),
            "\n┌─ BATTERY / POWER SOURCE (IOPS)\n└─\n"
            "\n┌─ AppleSmartBattery IORegistry — real voltage source\n└─\n");

  AuditHarness linuxHarness(ReportFlavour::gnuLinux);
  linuxHarness.platform.change([](FakeMachine& m) {
    m.powerSources = std::vector<std::optional<PropertyDict>>{};
    m.smartBattery.reset();
  });
  const std::string text = linuxHarness.section(Audit::dumpBattery);
  EXPECT_EQ(text.rfind("\n┌─ BATTERY / POWER SOURCE (/sys/class/power_supply)\n"
                       "│  ❌ no power supplies under /sys/class/power_supply\n",
                       0),
            0u)
      << text;
}

TEST(BatterySection, SourcesThatAreNotDictionariesAreSkipped) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change([](FakeMachine& m) {
    m.powerSources = std::vector<std::optional<PropertyDict>>{
        std::nullopt, PropertyDict{{"b", 2}, {"a", 1.5}}, PropertyDict{{"Z", "last"}}};
  });
  const std::string text = harness.section(Audit::dumpBattery);
  EXPECT_EQ(
      text.rfind("\n┌─ BATTERY / POWER SOURCE (IOPS)\n│  a: 1.5\n│  b: 2\n│  Z: last\n└─\n", 0), 0u)
      << text;
}

TEST(BatterySection, KeysSortByCodePointSoCapitalsComeFirst) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change([](FakeMachine& m) {
    m.powerSources = std::vector<std::optional<PropertyDict>>{
        PropertyDict{{"type", "x"}, {"Type", "y"}, {"Éclair", "z"}, {"Time to Empty", 95}}};
  });
  const std::string text = harness.section(Audit::dumpBattery);
  EXPECT_NE(text.find("│  Time to Empty: 95\n│  Type: y\n│  type: x\n│  Éclair: z\n"),
            std::string::npos)
      << text;
}

TEST(BatterySection, TheBatteryEntryPrintsOnlyIntegersInItsOwnOrder) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change([](FakeMachine& m) {
    m.smartBattery = PropertyDict{{"MaxCapacity", 4101},
                                  {"Temperature", 3051},
                                  {"Voltage", 12.5},  // not an integer: left out
                                  {"AppleRawCurrentCapacity", 3322},
                                  {"Serial", "F5D"}};
  });
  const std::string text = harness.section(Audit::dumpBattery);
  EXPECT_NE(text.find("┌─ AppleSmartBattery IORegistry — real voltage source\n"
                      "│  AppleRawCurrentCapacity: 3322\n"
                      "│  Temperature: 3051\n"
                      "│  MaxCapacity: 4101\n"
                      "└─\n"),
            std::string::npos)
      << text;
}

TEST(BatterySection, NestedValuesUseTheirPlainTextualForm) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change([](FakeMachine& m) {
    m.powerSources = std::vector<std::optional<PropertyDict>>{
        PropertyDict{{"List", PropertyList{1, "two"}}, {"Dict", PropertyDict{{"k", true}}}}};
  });
  const std::string text = harness.section(Audit::dumpBattery);
  EXPECT_NE(text.find("│  Dict: {k = true; }\n│  List: (1, two)\n"), std::string::npos) << text;
}

}  // namespace
}  // namespace brimly
