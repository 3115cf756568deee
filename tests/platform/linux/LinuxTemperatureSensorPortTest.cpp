#include "platform/linux/LinuxTemperatureSensorPort.h"

#include <gtest/gtest.h>

#include "FakePlatform.h"
#include "LinuxTestSupport.h"
#include "TemporaryTree.h"
#include "platform/linux/RootedFileSystem.h"

namespace brimly {
namespace {

using testing::recordingFixture;
using Sensors = std::vector<RawTemperatureSensor>;

// For the readings of one moment, taken together.
const testing::FakeClock stillClock;

Sensors sensorsOf(std::string_view fixture) {
  return LinuxTemperatureSensorPort(recordingFixture(fixture), stillClock).readTemperatureSensors();
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
  LinuxTemperatureSensorPort(files, stillClock).readTemperatureSensors();
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
  EXPECT_EQ(LinuxTemperatureSensorPort(files, stillClock).readTemperatureSensors(),
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
  EXPECT_EQ(LinuxTemperatureSensorPort(recordingFixture("vm-bare"), stillClock).naming(),
            SensorNaming::linuxHwmon);
}

TEST(LinuxTemperatureSensorPort, AChipThatAppearsLaterIsFoundOnceTheListingIsDue) {
  testing::TemporaryTree tree;
  testing::FakeClock clock;
  LinuxTemperatureSensorPort port(std::make_shared<RootedFileSystem>(tree.root()), clock);
  EXPECT_TRUE(port.readTemperatureSensors().empty());
  tree.write("sys/class/hwmon/hwmon0/name", "k10temp\n");
  tree.write("sys/class/hwmon/hwmon0/temp1_label", "Tctl\n");
  tree.write("sys/class/hwmon/hwmon0/temp1_input", "45250\n");
  tree.write("sys/class/thermal/thermal_zone0/type", "acpitz\n");
  tree.write("sys/class/thermal/thermal_zone0/temp", "41000\n");
  clock.advance(ListingRefresh::intervalSeconds - 1.0);
  EXPECT_TRUE(port.readTemperatureSensors().empty());
  clock.advance(1.0);
  EXPECT_EQ(port.readTemperatureSensors(),
            (Sensors{sensor("k10temp Tctl", 45.25), sensor("acpitz (thermal_zone0)", 41.0)}));
}

TEST(LinuxTemperatureSensorPort, BetweenListingsOnlyTheInputsAndTheDevicesSleepAreRead) {
  const auto files = recordingFixture("amd-laptop-charging");
  testing::FakeClock clock;
  LinuxTemperatureSensorPort port(files, clock);
  const Sensors first = port.readTemperatureSensors();
  clock.advance(ListingRefresh::intervalSeconds - 1.0);
  files->forget();
  EXPECT_EQ(port.readTemperatureSensors(), first);
  EXPECT_EQ(files->listingsOf("sys/class/hwmon"), 0);
  EXPECT_EQ(files->listingsOf("sys/class/thermal"), 0);
  for (const char* suffix : {"/name", "_label", "/type"})
    EXPECT_TRUE(files->readsEndingIn(suffix).empty()) << suffix;
  EXPECT_EQ(files->totalReads(),
            static_cast<int>(first.size()) +
                static_cast<int>(files->readsEndingIn("runtime_status").size()));
}

TEST(LinuxTemperatureSensorPort, AGpuThatFallsAsleepBetweenListingsIsNotWoken) {
  testing::TemporaryTree tree;
  tree.write("sys/class/hwmon/hwmon0/name", "amdgpu\n");
  tree.write("sys/class/hwmon/hwmon0/temp1_input", "46000\n");
  tree.write("sys/class/hwmon/hwmon0/device/power/runtime_status", "active\n");
  const auto files = std::make_shared<testing::RecordingFileSystem>(tree.root());
  LinuxTemperatureSensorPort port(files, stillClock);
  EXPECT_EQ(port.readTemperatureSensors(), (Sensors{sensor("amdgpu temp1", 46.0)}));
  tree.write("sys/class/hwmon/hwmon0/device/power/runtime_status", "suspended\n");
  files->forget();
  EXPECT_TRUE(port.readTemperatureSensors().empty());
  EXPECT_TRUE(files->readsEndingIn("temp1_input").empty());
  tree.write("sys/class/hwmon/hwmon0/device/power/runtime_status", "active\n");
  EXPECT_EQ(port.readTemperatureSensors(), (Sensors{sensor("amdgpu temp1", 46.0)}));
}

TEST(LinuxTemperatureSensorPort, AChipThatGoesAwayIsListedAgainAtTheNextReading) {
  testing::TemporaryTree tree;
  tree.write("sys/class/hwmon/hwmon0/name", "k10temp\n");
  tree.write("sys/class/hwmon/hwmon0/temp1_input", "45000\n");
  tree.write("sys/class/hwmon/hwmon1/name", "amdgpu\n");
  tree.write("sys/class/hwmon/hwmon1/temp1_input", "46000\n");
  const auto files = std::make_shared<testing::RecordingFileSystem>(tree.root());
  LinuxTemperatureSensorPort port(files, stillClock);
  EXPECT_EQ(port.readTemperatureSensors().size(), 2u);
  tree.remove("sys/class/hwmon/hwmon1");
  EXPECT_EQ(port.readTemperatureSensors(), (Sensors{sensor("k10temp temp1", 45.0)}));
  files->forget();
  EXPECT_EQ(port.readTemperatureSensors(), (Sensors{sensor("k10temp temp1", 45.0)}));
  EXPECT_EQ(files->listingsOf("sys/class/hwmon"), 1);
  EXPECT_TRUE(files->readsEndingIn("hwmon1/temp1_input").empty());
}

}  // namespace
}  // namespace brimly
