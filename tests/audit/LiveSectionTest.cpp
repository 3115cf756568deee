#include <gtest/gtest.h>

#include "AuditHarness.h"

namespace brimly {
namespace {

using testing::AuditHarness;
using testing::FakeMachine;

// Between the immediate ticks and the one a second later the machine is a quarter busy and its
// energy channels gain 4.2 J, so both figures can only come from the second sample cycle.
void loadBetweenCycles(AuditHarness& harness) {
  harness.liveLoop.beforeServing = [&harness] {
    harness.scheduler.advanceBy(0);  // the ticks that come at once
    harness.platform.change([](FakeMachine& m) {
      m.addCpuTicks(25, 75);
      m.addEnergy("CPU Energy", 4'200'000'000);
    });
  };
}

TEST(LiveSection, PrintsWhatTheMonitorPublishedAfterTwoCycles) {
  AuditHarness harness(ReportFlavour::macOS);
  loadBetweenCycles(harness);
  EXPECT_EQ(harness.section(Audit::dumpLive),
            "┌─ Brimly's LIVE reading (the exact value the panel shows)\n"
            "│  PWR state:           discharging(watts: 16.5)\n"
            "│  Battery flow watts:  -16.50 W\n"
            "│  SoC power (IOReport): 4.20 W\n"
            "│  Battery %:           81%\n"
            "│  CPU:                 25%\n"
            "│  GPU:                 23%\n"
            "│  RAM:                 57%\n"
            "│  Temp:                51.0°C\n"
            "└─\n");
}

TEST(LiveSection, ServesTheLoopForOneAndAHalfSecondsAtTheOpenPanelRate) {
  AuditHarness harness(ReportFlavour::gnuLinux);
  harness.section(Audit::dumpLive);
  EXPECT_EQ(harness.liveLoop.servedSeconds, 1.5);
  // started at the closed-panel rate, then opened: the second timer ticks every second
  EXPECT_EQ(harness.scheduler.startedTimerIntervals(), (std::vector<double>{5.0, 1.0}));
  // at least two sample cycles: the one the open panel takes at once and one a second later
  EXPECT_GE(harness.platform.readCounts().cpuTicks, 2);
  EXPECT_EQ(harness.scheduler.activeTimerCount(), 0u);  // the monitor stopped with the section
}

TEST(LiveSection, AMachineWithoutBatteryAcceleratorOrEnergyCountersPrintsNil) {
  FakeMachine bare = FakeMachine::bareMachine();
  bare.powerSources = std::vector<std::optional<PropertyDict>>{
      PropertyDict{{"Power Source State", "AC Power"}, {"Is Charging", false}}};
  AuditHarness mac(ReportFlavour::macOS, bare);
  EXPECT_EQ(mac.section(Audit::dumpLive),
            "┌─ Brimly's LIVE reading (the exact value the panel shows)\n"
            "│  PWR state:           acIdle\n"
            "│  Battery flow watts:  0.00 W\n"
            "│  SoC power (IOReport):  nil — IOReport unavailable here\n"
            "│  Battery %:           nil\n"
            "│  CPU:                 0%\n"
            "│  GPU:                 nil (IOAccelerator unreadable)\n"
            "│  RAM:                 0%\n"
            "│  Temp:                nil\n"
            "└─\n");

  AuditHarness linuxHarness(ReportFlavour::gnuLinux, bare);
  EXPECT_EQ(linuxHarness.section(Audit::dumpLive),
            "┌─ Brimly's LIVE reading (the exact value the panel shows)\n"
            "│  PWR state:           acIdle\n"
            "│  Battery flow watts:  0.00 W\n"
            "│  Package power (RAPL):  nil — RAPL unavailable here\n"
            "│  Battery %:           nil\n"
            "│  CPU:                 0%\n"
            "│  GPU:                 nil (no GPU busy figure)\n"
            "│  RAM:                 0%\n"
            "│  Temp:                nil\n"
            "└─\n");
}

}  // namespace
}  // namespace brimly
