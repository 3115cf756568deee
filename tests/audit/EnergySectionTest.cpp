#include <gtest/gtest.h>

#include "AuditHarness.h"

namespace brimly {
namespace {

using testing::AuditHarness;
using testing::FakeMachine;

// During the wait the counters gain 2.1 J on the three energy channels (and 1 J on ANE, which is
// not an energy channel): 4.2 W over half a second.
void drawPower(AuditHarness& harness) {
  harness.duringWait = [&harness] {
    harness.platform.change([](FakeMachine& m) {
      m.addEnergy("CPU Energy", 1'500'000'000);
      m.addEnergy("GPU Energy", 400'000'000);
      m.addEnergy("DRAM Energy", 200'000'000);
      m.addEnergy("ANE", 1'000'000'000);
    });
  };
}

TEST(EnergySection, MacOSMeasuresOverHalfASecond) {
  AuditHarness harness(ReportFlavour::macOS);
  drawPower(harness);
  EXPECT_EQ(harness.section(Audit::dumpEnergy),
            "\n"
            "┌─ SoC POWER (IOReport 'Energy Model' channels)\n"
            "│  Sampled over 500ms\n"
            "│  ► SoC total (CPU+GPU+ANE+DRAM Energy channels): 4.200 W\n"
            "│  Compare: sudo powermetrics --samplers cpu_power,gpu_power -i 500 -n 1\n"
            "└─\n");
  EXPECT_EQ(harness.waits, std::vector<double>{0.5});
}

TEST(EnergySection, LinuxNamesRapl) {
  AuditHarness harness(ReportFlavour::gnuLinux);
  drawPower(harness);
  EXPECT_EQ(harness.section(Audit::dumpEnergy),
            "\n"
            "┌─ PACKAGE POWER (powercap RAPL energy counters)\n"
            "│  Sampled over 500ms\n"
            "│  ► Package total (RAPL package zones): 4.200 W\n"
            "│  Compare: sudo turbostat --quiet --show PkgWatt --interval 1\n"
            "└─\n");
}

TEST(EnergySection, UnavailableChannelsPrintTheFailureLine) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change([](FakeMachine& m) { m.energyAvailable = false; });
  EXPECT_EQ(harness.section(Audit::dumpEnergy),
            "\n"
            "┌─ SoC POWER (IOReport 'Energy Model' channels)\n"
            "│  ❌ IOReport returned nil (channels unavailable or unsigned binary)\n"
            "└─\n");
  EXPECT_EQ(harness.waits, std::vector<double>{0.5});  // the wait happens all the same
}

TEST(EnergySection, LinuxSaysWhyTheCountersGaveNothing) {
  const auto failureLine = [](EnergyCounterAccess access, bool withKernelFigures) {
    AuditHarness harness(ReportFlavour::gnuLinux);
    harness.platform.change([](FakeMachine& m) { m.energyAvailable = false; });
    harness.kernel.energyAccess = access;
    harness.withKernelFigures = withKernelFigures;
    const std::string text = harness.section(Audit::dumpEnergy);
    const auto start = text.find("│  ");
    return text.substr(start, text.find('\n', start) - start);
  };
  EXPECT_EQ(failureLine(EnergyCounterAccess::notPermitted, true),
            "│  ❌ RAPL energy counters not readable (permission)");
  EXPECT_EQ(failureLine(EnergyCounterAccess::noZones, true),
            "│  ❌ no RAPL package zone under /sys/class/powercap");
  EXPECT_EQ(failureLine(EnergyCounterAccess::readable, true),
            "│  ❌ RAPL energy counters gave no reading");
  EXPECT_EQ(failureLine(EnergyCounterAccess::notPermitted, false),
            "│  ❌ RAPL energy counters gave no reading");
}

TEST(EnergySection, AnImplausibleRateIsAFailureNotANumber) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.duringWait = [&harness] {
    harness.platform.change([](FakeMachine& m) { m.addEnergy("CPU Energy", -4'000'000'000); });
  };
  EXPECT_NE(harness.section(Audit::dumpEnergy).find("│  ❌ IOReport returned nil"),
            std::string::npos);
}

TEST(EnergySection, LinuxListsTheZonesAfterAFailureOnly) {
  AuditHarness failing(ReportFlavour::gnuLinux);
  failing.platform.change([](FakeMachine& m) { m.energyAvailable = false; });
  failing.kernel.energyAccess = EnergyCounterAccess::notPermitted;
  failing.kernel.energy = {
      "/sys/class/powercap/intel-rapl:0 (package-0): energy_uj unreadable (Permission denied)"};
  EXPECT_EQ(failing.section(Audit::dumpEnergy),
            "\n"
            "┌─ PACKAGE POWER (powercap RAPL energy counters)\n"
            "│  ❌ RAPL energy counters not readable (permission)\n"
            "│  /sys/class/powercap/intel-rapl:0 (package-0): energy_uj unreadable (Permission "
            "denied)\n"
            "└─\n");

  AuditHarness working(ReportFlavour::gnuLinux);
  drawPower(working);
  working.kernel.energy = {"/sys/class/powercap/intel-rapl:0 (package-0): energy_uj readable"};
  EXPECT_EQ(working.section(Audit::dumpEnergy).find("intel-rapl"), std::string::npos);
}

}  // namespace
}  // namespace brimly
