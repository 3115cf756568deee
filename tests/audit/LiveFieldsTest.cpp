#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>

#include "audit/Audit.h"

namespace brimly {
namespace {

std::string liveRows(const MetricSample& sample, ReportFlavour flavour) {
  std::ostringstream out;
  ReportWriter writer(out);
  Audit::printLiveFields(sample, reportWording(flavour), writer);
  return out.str();
}

MetricSample laptopOnBattery() {
  MetricSample sample;
  sample.powerState = PowerState::discharging(16.5);
  sample.powerWatts = -16.5;
  sample.systemPowerWatts = 4.2;
  sample.batteryPercent = 81;
  sample.cpu = 0.125;  // exactly 12.5 %: a half, rounded away from zero
  sample.gpu = 0.23;
  sample.memory = 0.4462;
  sample.temperatureC = 51.0;
  return sample;
}

TEST(LiveFields, PrintsEveryPublishedFieldOfAMachineWithAllReadings) {
  EXPECT_EQ(liveRows(laptopOnBattery(), ReportFlavour::macOS),
            "│  PWR state:           discharging(watts: 16.5)\n"
            "│  Battery flow watts:  -16.50 W\n"
            "│  SoC power (IOReport): 4.20 W\n"
            "│  Battery %:           81%\n"
            "│  CPU:                 13%\n"
            "│  GPU:                 23%\n"
            "│  RAM:                 45%\n"
            "│  Temp:                51.0°C\n");
}

TEST(LiveFields, LinuxNamesRaplForTheSystemPower) {
  EXPECT_EQ(liveRows(laptopOnBattery(), ReportFlavour::gnuLinux),
            "│  PWR state:           discharging(watts: 16.5)\n"
            "│  Battery flow watts:  -16.50 W\n"
            "│  Package power (RAPL): 4.20 W\n"
            "│  Battery %:           81%\n"
            "│  CPU:                 13%\n"
            "│  GPU:                 23%\n"
            "│  RAM:                 45%\n"
            "│  Temp:                51.0°C\n");
}

TEST(LiveFields, MissingReadingsPrintNilMacOS) {
  EXPECT_EQ(liveRows(MetricSample{}, ReportFlavour::macOS),
            "│  PWR state:           unknown\n"
            "│  Battery flow watts:  0.00 W\n"
            "│  SoC power (IOReport):  nil — IOReport unavailable here\n"
            "│  Battery %:           nil\n"
            "│  CPU:                 0%\n"
            "│  GPU:                 nil (IOAccelerator unreadable)\n"
            "│  RAM:                 0%\n"
            "│  Temp:                nil\n");
}

TEST(LiveFields, MissingReadingsPrintNilLinux) {
  EXPECT_EQ(liveRows(MetricSample{}, ReportFlavour::gnuLinux),
            "│  PWR state:           unknown\n"
            "│  Battery flow watts:  0.00 W\n"
            "│  Package power (RAPL):  nil — RAPL unavailable here\n"
            "│  Battery %:           nil\n"
            "│  CPU:                 0%\n"
            "│  GPU:                 nil (no GPU busy figure)\n"
            "│  RAM:                 0%\n"
            "│  Temp:                nil\n");
}

TEST(LiveFields, PercentagesRoundHalvesAwayFromZero) {
  MetricSample sample;
  sample.cpu = 0.005;  // 0.5 %
  sample.gpu = 0.625;  // exactly 62.5 %: half-even rounding would give 62
  sample.memory = 1.0;
  const std::string rows = liveRows(sample, ReportFlavour::macOS);
  EXPECT_NE(rows.find("│  CPU:                 1%\n"), std::string::npos);
  EXPECT_NE(rows.find("│  GPU:                 63%\n"), std::string::npos);
  EXPECT_NE(rows.find("│  RAM:                 100%\n"), std::string::npos);
}

TEST(LiveFields, ChargingAndIdleStatesAndBatteryAboveAHundred) {
  MetricSample sample;
  sample.powerState = PowerState::charging(12.0);
  sample.powerWatts = 12.0;
  sample.batteryPercent = 103;
  EXPECT_NE(liveRows(sample, ReportFlavour::macOS)
                .find("│  PWR state:           charging(watts: 12.0)\n│  Battery flow watts:  "
                      "12.00 W\n"),
            std::string::npos);
  EXPECT_NE(liveRows(sample, ReportFlavour::macOS).find("│  Battery %:           103%\n"),
            std::string::npos);
  sample.powerState = PowerState::acIdle();
  EXPECT_NE(liveRows(sample, ReportFlavour::gnuLinux).find("│  PWR state:           acIdle\n"),
            std::string::npos);
}

TEST(LiveFieldsDeathTest, APercentageWithoutAnIntegerFormIsFatal) {
  MetricSample sample;
  sample.cpu = std::numeric_limits<double>::quiet_NaN();
  EXPECT_DEATH(liveRows(sample, ReportFlavour::macOS), "integer form");
  sample.cpu = 0.0;
  sample.gpu = std::numeric_limits<double>::infinity();
  EXPECT_DEATH(liveRows(sample, ReportFlavour::gnuLinux), "integer form");
}

}  // namespace
}  // namespace brimly
