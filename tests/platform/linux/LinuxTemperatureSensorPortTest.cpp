#include "platform/linux/LinuxTemperatureSensorPort.h"

#include <gtest/gtest.h>

#include "LinuxTestSupport.h"
#include "TemporaryTree.h"
#include "platform/linux/RootedFileSystem.h"

namespace brimly {
namespace {

using testing::recordingFixture;
using Sensors = std::vector<RawTemperatureSensor>;

Sensors sensorsOf(std::string_view fixture) {
  return LinuxTemperatureSensorPort(recordingFixture(fixture)).readTemperatureSensors();
}

RawTemperatureSensor sensor(const char* name, double celsius) {
  return {name, celsius};
}

TEST(LinuxTemperatureSensorPort, IntelLaptopListsHwmonThenThermalZones) {
  const Sensors expected{sensor("acpitz temp1", 27.8),
                         sensor("coretemp Package id 0", 58.0),
                         sensor("coretemp Core 0", 55.0),
                         sensor("coretemp Core 1", 58.0),
                         sensor("coretemp Core 2", 54.0),
                         sensor("coretemp Core 3", 57.0),
                         sensor("pch_cannonlake temp1", 45.0),
                         sensor("acpitz (thermal_zone0)", 27.8),
                         sensor("INT3400 Thermal (thermal_zone1)", 20.0),
                         sensor("TCPU (thermal_zone2)", 58.05),
                         sensor("x86_pkg_temp (thermal_zone4)", 58.0)};
  EXPECT_EQ(sensorsOf("intel-laptop-discharging"), expected);
}

TEST(LinuxTemperatureSensorPort, DrivesAndWifiAreNeverAsked) {
  const auto files = recordingFixture("intel-laptop-discharging");
  LinuxTemperatureSensorPort(files).readTemperatureSensors();
  EXPECT_EQ(files->readsOf("sys/class/hwmon/hwmon1/temp1_input"), 0);  // nvme
  EXPECT_EQ(files->readsOf("sys/class/hwmon/hwmon2/temp1_input"), 0);  // iwlwifi_1
  EXPECT_EQ(files->readsOf("sys/class/thermal/thermal_zone3/temp"), 0);
}

TEST(LinuxTemperatureSensorPort, AmdLaptop) {
  const Sensors expected{sensor("acpitz temp1", 41.0), sensor("amdgpu edge", 46.0),
                         sensor("k10temp Tctl", 62.875), sensor("k10temp Tccd1", 58.25),
                         sensor("acpitz (thermal_zone0)", 41.0)};
  EXPECT_EQ(sensorsOf("amd-laptop-charging"), expected);
}

TEST(LinuxTemperatureSensorPort, NvidiaDesktopWithTctlOffset) {
  const Sensors expected{sensor("k10temp Tctl", 66.125), sensor("k10temp Tdie", 46.125),
                         sensor("k10temp Tccd1", 44.0)};
  EXPECT_EQ(sensorsOf("nvidia-desktop"), expected);
}

TEST(LinuxTemperatureSensorPort, AVirtualMachineHasNoSensors) {
  EXPECT_TRUE(sensorsOf("vm-bare").empty());
}

TEST(LinuxTemperatureSensorPort, TheSensorsOfASleepingGpuAreNotRead) {
  const auto files = recordingFixture("suspended-dgpu");
  EXPECT_EQ(LinuxTemperatureSensorPort(files).readTemperatureSensors(),
            (Sensors{sensor("coretemp Package id 0", 51.0)}));
  EXPECT_TRUE(files->readsEndingIn("hwmon1/temp1_input").empty());
  EXPECT_TRUE(files->readsEndingIn("hwmon1/temp2_input").empty());
}

TEST(LinuxTemperatureSensorPort, BrokenContentKeepsOnlyNumbers) {
  const Sensors expected{
      sensor("coretemp temp1", -128.0),  // an empty label counts as none; no value is filtered
      RawTemperatureSensor{std::nullopt, 40.0},   // a chip without a name
      sensor("w83627hf temp1", 35.0),             // old layout: files on the device
      RawTemperatureSensor{std::nullopt, 45.0}};  // a zone without a type
  EXPECT_EQ(sensorsOf("broken"), expected);
}

TEST(LinuxTemperatureSensorPort, UsesTheLinuxNamingRule) {
  EXPECT_EQ(LinuxTemperatureSensorPort(recordingFixture("vm-bare")).naming(),
            SensorNaming::linuxHwmon);
}

TEST(LinuxTemperatureSensorPort, AChipThatAppearsLaterIsFound) {
  testing::TemporaryTree tree;
  LinuxTemperatureSensorPort port(std::make_shared<RootedFileSystem>(tree.root()));
  EXPECT_TRUE(port.readTemperatureSensors().empty());
  tree.write("sys/class/hwmon/hwmon0/name", "k10temp\n");
  tree.write("sys/class/hwmon/hwmon0/temp1_label", "Tctl\n");
  tree.write("sys/class/hwmon/hwmon0/temp1_input", "45250\n");
  EXPECT_EQ(port.readTemperatureSensors(), (Sensors{sensor("k10temp Tctl", 45.25)}));
}

}  // namespace
}  // namespace brimly
