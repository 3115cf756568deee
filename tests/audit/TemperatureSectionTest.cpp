#include <gtest/gtest.h>

#include "AuditHarness.h"

namespace brimly {
namespace {

using testing::AuditHarness;
using testing::FakeMachine;

// "│  " + the name in a 50-character column + two blanks + the value in an 8-character column,
// spelled out with explicit blank counts.
std::string row(const std::string& name, std::size_t nameBlanks, const std::string& value,
                std::size_t valueBlanks) {
  return "│  " + name + std::string(nameBlanks, ' ') + "  " + value +
         std::string(valueBlanks, ' ') + "\n";
}

const std::string kRule = "│  " + [] {
  std::string rule;
  for (int i = 0; i < 62; ++i)
    rule += "─";
  return rule;
}() + "\n";

TEST(TemperatureSection, MacOSListsSensorsSortedByNameAndTheLiveReading) {
  AuditHarness harness(ReportFlavour::macOS);
  EXPECT_EQ(harness.section(Audit::dumpTemperatureSensors),
            "┌─ TEMPERATURE SENSORS (via Brimly's SensorReader — same code path as the live "
            "panel)\n"
            "│  Sensors found: 4\n" +
                row("NAME", 46, "°C", 6) + kRule + row("NAND CH0 temp", 37, "40.0", 4) +
                row("PMU tdie1", 41, "51.0", 4) + row("PMU tp3s", 42, "48.2", 4) +
                row("gas gauge battery", 33, "31.0", 4) +
                "│  ► Brimly's live reading (max of CPU-cluster sensors): 51.0 °C\n"
                "└─\n");
}

TEST(TemperatureSection, ImplausibleReadingsAreListedAsInvalidButCounted) {
  for (const auto flavour : testing::bothFlavours()) {
    AuditHarness harness(flavour);
    harness.platform.change([](FakeMachine& m) {
      m.temperatureSensors = {{"PMU tdie1", -60.0}, {"PMU tdie2", 250.0}, {"PMU tdie3", 45.0}};
    });
    const std::string text = harness.section(Audit::dumpTemperatureSensors);
    EXPECT_NE(text.find("│  Sensors found: 3\n"), std::string::npos) << text;
    EXPECT_NE(text.find(row("PMU tdie1", 41, "INVALID", 1)), std::string::npos) << text;
    EXPECT_NE(text.find(row("PMU tdie2", 41, "INVALID", 1)), std::string::npos) << text;
    EXPECT_NE(text.find(row("PMU tdie3", 41, "45.0", 4)), std::string::npos) << text;
  }
}

TEST(TemperatureSection, TheValidRangeIsOpenAtBothEnds) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change([](FakeMachine& m) {
    m.temperatureSensors = {{"a", -50.0}, {"b", 200.0}, {"c", -49.94}, {"d", 199.94}};
  });
  const std::string text = harness.section(Audit::dumpTemperatureSensors);
  EXPECT_NE(text.find(row("a", 49, "INVALID", 1)), std::string::npos) << text;
  EXPECT_NE(text.find(row("b", 49, "INVALID", 1)), std::string::npos) << text;
  EXPECT_NE(text.find(row("c", 49, "-49.9", 3)), std::string::npos) << text;
  EXPECT_NE(text.find(row("d", 49, "199.9", 3)), std::string::npos) << text;
}

TEST(TemperatureSection, ASixtyCharacterNameIsCutToFifty) {
  for (const auto flavour : testing::bothFlavours()) {
    AuditHarness harness(flavour);
    const std::string longName = "PMU tdie " + std::string(51, 'x');  // 60 characters
    harness.platform.change([&](FakeMachine& m) { m.temperatureSensors = {{longName, 47.25}}; });
    const std::string text = harness.section(Audit::dumpTemperatureSensors);
    EXPECT_NE(text.find("│  " + longName.substr(0, 50) + "  47.2    \n"), std::string::npos)
        << text;
    EXPECT_EQ(text.find(longName), std::string::npos) << text;
  }
}

TEST(TemperatureSection, EqualNamesKeepTheSystemsOrder) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change([](FakeMachine& m) {
    m.temperatureSensors = {{"b", 1.0}, {std::nullopt, 2.0}, {"a", 3.0}, {std::nullopt, 4.0}};
  });
  const std::string text = harness.section(Audit::dumpTemperatureSensors);
  EXPECT_NE(text.find(row("<unnamed>", 41, "2.0", 5) + row("<unnamed>", 41, "4.0", 5) +
                      row("a", 49, "3.0", 5) + row("b", 49, "1.0", 5)),
            std::string::npos)
      << text;
}

TEST(TemperatureSection, NoLiveLineWhenNoSensorQualifies) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change([](FakeMachine& m) { m.temperatureSensors = {{"tcal", 52.0}}; });
  const std::string text = harness.section(Audit::dumpTemperatureSensors);
  EXPECT_EQ(text.find("►"), std::string::npos) << text;
  EXPECT_NE(text.find(row("tcal", 46, "52.0", 4) + "└─\n"), std::string::npos) << text;
}

TEST(TemperatureSection, MacOSWithoutSensorsPrintsOnlyTheEmptyTable) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change([](FakeMachine& m) { m.temperatureSensors.clear(); });
  EXPECT_EQ(harness.section(Audit::dumpTemperatureSensors),
            "┌─ TEMPERATURE SENSORS (via Brimly's SensorReader — same code path as the live "
            "panel)\n"
            "│  Sensors found: 0\n" +
                row("NAME", 46, "°C", 6) + kRule + "└─\n");
}

TEST(TemperatureSection, LinuxSaysPlainlyThatNoSensorCanBeRead) {
  AuditHarness harness(ReportFlavour::gnuLinux);
  harness.platform.change([](FakeMachine& m) {
    m.temperatureSensors.clear();
    m.sensorNaming = SensorNaming::linuxHwmon;
  });
  EXPECT_EQ(harness.section(Audit::dumpTemperatureSensors),
            "┌─ TEMPERATURE SENSORS (hwmon + thermal zones via Brimly's SensorReader — same code "
            "path as the live panel)\n"
            "│  Sensors found: 0\n" +
                row("NAME", 46, "°C", 6) + kRule +
                "│  ❌ no readable sensors under /sys/class/hwmon or /sys/class/thermal\n"
                "│  Compare: sensors ; cat /sys/class/thermal/thermal_zone*/{type,temp}\n"
                "└─\n");
}

TEST(TemperatureSection, LinuxListsSourcesLeftUnreadAfterTheTable) {
  AuditHarness harness(ReportFlavour::gnuLinux);
  harness.platform.change([](FakeMachine& m) {
    m.temperatureSensors = {{"coretemp Package id 0", 58.0}};
    m.sensorNaming = SensorNaming::linuxHwmon;
  });
  harness.kernel.temperature = {
      "/sys/class/hwmon/hwmon1 (nvme): not read, each read costs a device command"};
  const std::string text = harness.section(Audit::dumpTemperatureSensors);
  EXPECT_NE(text.find(row("coretemp Package id 0", 29, "58.0", 4) +
                      "│  ► Brimly's live reading (max of CPU sensors): 58.0 °C\n"
                      "│  /sys/class/hwmon/hwmon1 (nvme): not read, each read costs a device "
                      "command\n"
                      "│  Compare: sensors"),
            std::string::npos)
      << text;
}

}  // namespace
}  // namespace brimly
