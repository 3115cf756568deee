#include "sampling/SensorReader.h"

#include <gtest/gtest.h>

#include "FakePlatform.h"
#include "sampling/SensorNameRules.h"

namespace brimly {
namespace {

using testing::FakeMachine;
using testing::FakePlatform;

std::optional<double> hottestApple(const std::vector<SensorReading>& readings) {
  return SensorReader::hottestProcessorTemperature(readings, SensorNaming::appleSilicon);
}

std::optional<double> hottestLinux(const std::vector<SensorReading>& readings) {
  return SensorReader::hottestProcessorTemperature(readings, SensorNaming::linuxHwmon);
}

FakePlatform platformWithSensors(std::vector<RawTemperatureSensor> sensors, SensorNaming naming) {
  FakeMachine machine = FakeMachine::bareMachine();
  machine.temperatureSensors = std::move(sensors);
  machine.sensorNaming = naming;
  return FakePlatform(machine);
}

// Apple-silicon names

TEST(SensorReaderApple, HottestProcessorSensorWinsAndTheGaugeIsLeftOut) {
  EXPECT_EQ(hottestApple({{"PMU tp3s", 48.2}, {"PMU tdie1", 51.0}, {"gas gauge battery", 31.0}}),
            51.0);
}

TEST(SensorReaderApple, WithoutProcessorSensorsTheFallbackTakesAnyOtherSensor) {
  EXPECT_EQ(hottestApple({{"NAND CH0 temp", 60.0}, {"Battery", 33.0}}), 33.0);
}

TEST(SensorReaderApple, BoundsAreExclusive) {
  EXPECT_EQ(hottestApple({{"PMU tdie1", 130.0}, {"PMU tdie2", 45.0}}), 45.0);
  EXPECT_EQ(hottestApple({{"PMU tdie1", 5.0}, {"PMU tdie2", 45.0}}), 45.0);
  EXPECT_FALSE(hottestApple({{"PMU tdie1", 130.0}}).has_value());
  EXPECT_FALSE(hottestApple({{"PMU tdie1", 5.0}}).has_value());
  EXPECT_EQ(hottestApple({{"PMU tdie1", 129.9}}), 129.9);
  EXPECT_EQ(hottestApple({{"PMU tdie1", 5.1}}), 5.1);
}

TEST(SensorReaderApple, CalibrationSensorAloneGivesNothing) {
  EXPECT_FALSE(hottestApple({{"tcal", 52.0}}).has_value());
}

TEST(SensorReaderApple, NoSensorsGiveNothing) {
  EXPECT_FALSE(hottestApple({}).has_value());
}

TEST(SensorReaderApple, UnnamedSensorIsListedAndCountsOnlyInTheFallback) {
  auto platform =
      platformWithSensors({{std::nullopt, 70.0}, {"PMU tdie1", 50.0}}, SensorNaming::appleSilicon);
  SensorReader reader(platform.makeTemperatureSensorPort());
  EXPECT_EQ(reader.allTemperatures(),
            (std::vector<SensorReading>{{"<unnamed>", 70.0}, {"PMU tdie1", 50.0}}));
  EXPECT_EQ(reader.currentCPUTemperature(), 50.0);

  platform.change([](FakeMachine& machine) {
    machine.temperatureSensors = {{std::nullopt, 70.0}};
  });
  EXPECT_EQ(reader.currentCPUTemperature(), 70.0);
}

TEST(SensorReaderApple, NameRulesApplyInOrderAndCaseSensitively) {
  struct Case {
    const char* name;
    SensorRole role;
  };
  const Case cases[] = {
      {"tcal", SensorRole::excluded},
      {"PMU tcal tdie", SensorRole::excluded},  // the rejection comes first
      {"gas gauge battery", SensorRole::excluded},
      {"NAND CH0 temp", SensorRole::excluded},
      {"PMU tdie1", SensorRole::processor},
      {"PMU tdev3", SensorRole::processor},
      {"PMU TP3w", SensorRole::processor},
      {"PMU tp2s", SensorRole::processor},
      {"pACC MTR Temp Sensor2", SensorRole::processor},
      {"eACC MTR Temp Sensor0", SensorRole::processor},
      {"CPU die", SensorRole::processor},
      {"X PMU tp1", SensorRole::other},  // "PMU tp" must begin the name
      {"pmu tp1", SensorRole::other},
      {"cpu die", SensorRole::other},
      {"Tdie", SensorRole::other},
      {"nand", SensorRole::other},
      {"Battery", SensorRole::other},
      {"<unnamed>", SensorRole::other},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(SensorNameRules::appleSiliconRole(c.name), c.role) << c.name;
  }
}

TEST(SensorReaderApple, ResultIsTheMaximumNotTheAverage) {
  EXPECT_EQ(hottestApple({{"pACC MTR Temp Sensor0", 40.0},
                          {"pACC MTR Temp Sensor1", 62.5},
                          {"eACC MTR Temp Sensor0", 38.0}}),
            62.5);
}

// Linux hwmon and thermal-zone names

TEST(SensorReaderLinux, IntelPackageAndCores) {
  EXPECT_EQ(hottestLinux({{"coretemp Package id 0", 58.0},
                          {"coretemp Core 0", 55.0},
                          {"coretemp Core 1", 58.0},
                          {"coretemp Core 2", 54.0},
                          {"coretemp Core 3", 57.0}}),
            58.0);
}

TEST(SensorReaderLinux, AmdControlTemperatureCountsBesideTheChipletSensors) {
  EXPECT_EQ(
      hottestLinux({{"k10temp Tctl", 45.25}, {"k10temp Tccd1", 41.0}, {"k10temp Tccd2", 43.5}}),
      45.25);
}

TEST(SensorReaderLinux, DieTemperatureIsPreferredOverTheOffsetControlTemperature) {
  EXPECT_EQ(hottestLinux({{"k10temp Tctl", 66.125}, {"k10temp Tdie", 46.125}}), 46.125);
  EXPECT_EQ(
      hottestLinux({{"zenpower Tdie", 50.0}, {"zenpower Tctl", 60.0}, {"zenpower Tccd1", 48.0}}),
      50.0);
  // Only the chip that lists a die temperature loses its control temperature.
  EXPECT_EQ(hottestLinux({{"k10temp Tctl", 66.0}, {"k10temp Tdie", 46.0}, {"zenpower Tctl", 52.0}}),
            52.0);
}

TEST(SensorReaderLinux, NonProcessorChipsAreIgnoredWhenAProcessorReads) {
  EXPECT_EQ(hottestLinux({{"acpitz temp1", 27.8},
                          {"nvme Composite", 38.85},
                          {"amdgpu edge", 45.0},
                          {"coretemp Package id 0", 41.0}}),
            41.0);
}

TEST(SensorReaderLinux, FallbackTakesOtherSensorsButNeverDrivesGpusOrBatteries) {
  EXPECT_EQ(hottestLinux({{"acpitz temp1", 27.8},
                          {"nvme Composite", 38.85},
                          {"amdgpu edge", 45.0},
                          {"BAT0 temp1", 31.0}}),
            27.8);
  EXPECT_EQ(hottestLinux({{"thinkpad temp1", 52.0}, {"acpitz (thermal_zone0)", 27.8}}), 52.0);
  EXPECT_FALSE(hottestLinux({{"nvme Composite", 38.85},
                             {"drivetemp temp1", 35.0},
                             {"radeon temp1", 50.0},
                             {"nouveau temp1", 50.0},
                             {"iwlwifi_1 temp1", 40.0},
                             {"pch_cannonlake temp1", 44.0},
                             {"ucsi_source_psy_USBC000:001 temp1", 30.0},
                             {"INT3400 Thermal (thermal_zone1)", 20.0},
                             {"sbs-battery temp1", 30.0}})
                   .has_value());
}

TEST(SensorReaderLinux, IntelThermalZones) {
  EXPECT_EQ(hottestLinux({{"acpitz (thermal_zone0)", 27.8},
                          {"INT3400 Thermal (thermal_zone1)", 20.0},
                          {"TCPU (thermal_zone2)", 58.05},
                          {"x86_pkg_temp (thermal_zone4)", 58.0}}),
            58.05);
}

TEST(SensorReaderLinux, ArmZonesAndTheirHwmonTwins) {
  EXPECT_EQ(hottestLinux({{"cpu-thermal (thermal_zone0)", 48.686}, {"cpu_thermal temp1", 48.686}}),
            48.686);
  EXPECT_EQ(hottestLinux({{"cpu0-thermal (thermal_zone0)", 51.0},
                          {"cpu1-thermal (thermal_zone1)", 53.0},
                          {"gpu-thermal (thermal_zone2)", 60.0}}),
            53.0);
  EXPECT_EQ(hottestLinux({{"soc-thermal (thermal_zone0)", 44.0},
                          {"bigcore0-thermal (thermal_zone1)", 47.0},
                          {"littlecore-thermal (thermal_zone3)", 42.0},
                          {"npu-thermal (thermal_zone5)", 70.0}}),
            47.0);
}

TEST(SensorReaderLinux, BoundsAreExclusive) {
  EXPECT_FALSE(
      hottestLinux({{"coretemp Package id 0", 130.0}, {"coretemp Core 0", 5.0}}).has_value());
  EXPECT_EQ(hottestLinux({{"coretemp Package id 0", 127.0}, {"acpitz temp1", 60.0}}), 127.0);
}

TEST(SensorReaderLinux, AppleNamesMeanNothingHere) {
  EXPECT_EQ(SensorNameRules::linuxRole("PMU tdie1"), SensorRole::other);
  EXPECT_EQ(hottestLinux({{"PMU tdie1", 51.0}, {"acpitz temp1", 55.0}}), 55.0);
}

TEST(SensorReaderLinux, NamesSplitIntoChipAndLabel) {
  EXPECT_EQ(SensorNameRules::parseLinuxName("coretemp Package id 0"),
            (LinuxSensorName{"coretemp", "Package id 0", false}));
  EXPECT_EQ(SensorNameRules::parseLinuxName("cpu_thermal temp1"),
            (LinuxSensorName{"cpu_thermal", "temp1", false}));
  EXPECT_EQ(SensorNameRules::parseLinuxName("INT3400 Thermal (thermal_zone1)"),
            (LinuxSensorName{"INT3400 Thermal", "", true}));
  EXPECT_EQ(SensorNameRules::parseLinuxName("cpu-thermal (thermal_zone0)"),
            (LinuxSensorName{"cpu-thermal", "", true}));
  EXPECT_EQ(SensorNameRules::parseLinuxName("acpitz"), (LinuxSensorName{"acpitz", "", false}));
  EXPECT_EQ(SensorNameRules::parseLinuxName(""), (LinuxSensorName{"", "", false}));
}

TEST(SensorReaderLinux, ReaderUsesThePortsNamingConvention) {
  auto platform = platformWithSensors({{"k10temp Tctl", 45.25}, {"k10temp Tccd1", 41.0}},
                                      SensorNaming::linuxHwmon);
  SensorReader reader(platform.makeTemperatureSensorPort());
  EXPECT_EQ(reader.naming(), SensorNaming::linuxHwmon);
  EXPECT_EQ(reader.currentCPUTemperature(), 45.25);
}

// The reader itself

TEST(SensorReader, ListsEverySensorInTheSystemsOrderUnfiltered) {
  auto platform =
      platformWithSensors({{"tcal", 52.0}, {"PMU tdie1", 250.0}, {"gas gauge battery", -60.0}},
                          SensorNaming::appleSilicon);
  SensorReader reader(platform.makeTemperatureSensorPort());
  EXPECT_EQ(reader.allTemperatures(),
            (std::vector<SensorReading>{
                {"tcal", 52.0}, {"PMU tdie1", 250.0}, {"gas gauge battery", -60.0}}));
  EXPECT_FALSE(reader.currentCPUTemperature().has_value());
}

TEST(SensorReader, ReadsAfreshEveryTime) {
  auto platform = platformWithSensors({{"PMU tdie1", 50.0}}, SensorNaming::appleSilicon);
  SensorReader reader(platform.makeTemperatureSensorPort());
  EXPECT_EQ(reader.currentCPUTemperature(), 50.0);
  platform.change([](FakeMachine& machine) { machine.temperatureSensors = {{"PMU tdie1", 61.0}}; });
  EXPECT_EQ(reader.currentCPUTemperature(), 61.0);
  platform.change([](FakeMachine& machine) { machine.temperatureSensors.clear(); });
  EXPECT_FALSE(reader.currentCPUTemperature().has_value());
}

TEST(SensorReader, MissingPortReadsAsNoSensors) {
  SensorReader reader(nullptr);
  EXPECT_TRUE(reader.allTemperatures().empty());
  EXPECT_FALSE(reader.currentCPUTemperature().has_value());
}

}  // namespace
}  // namespace brimly
