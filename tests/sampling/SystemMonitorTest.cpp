#include "sampling/SystemMonitor.h"

#include <gtest/gtest.h>

#include <deque>
#include <memory>

#include "FakePlatform.h"
#include "ManualScheduler.h"
#include "sampling/MetricSampler.h"

namespace brimly {
namespace {

using testing::FakeMachine;
using testing::FakePlatform;
using testing::ManualScheduler;

class SystemMonitorTest : public ::testing::Test {
 protected:
  SystemMonitorTest() {
    QObject::connect(&monitor_, &SystemMonitor::sampleApplied, [this] {
      ++applied_;
      appliedAt_.push_back(scheduler_.nowSeconds());
    });
  }

  int samplesTaken() const { return platform_.readCounts().cpuTicks; }

  ManualScheduler scheduler_;
  FakePlatform platform_{FakeMachine::typicalLaptop(), scheduler_};
  SystemMonitor monitor_{platform_, scheduler_};
  int applied_ = 0;
  std::vector<double> appliedAt_;
};

TEST_F(SystemMonitorTest, ConstructingTakesNoSampleUntilStarted) {
  scheduler_.advanceBy(60.0);
  EXPECT_EQ(samplesTaken(), 0);
  EXPECT_EQ(applied_, 0);
  EXPECT_EQ(monitor_.current(), MetricSample{});
  EXPECT_FALSE(monitor_.hasTimer());
  EXPECT_FALSE(monitor_.panelOpen());
  EXPECT_TRUE(scheduler_.startedTimerIntervals().empty());

  monitor_.start();
  scheduler_.advanceBy(0);
  EXPECT_EQ(applied_, 1);
  EXPECT_EQ(monitor_.current().batteryPercent, 81);
}

TEST_F(SystemMonitorTest, WhatTheMachineHasNoSourceForComesWithTheFirstSampleOnce) {
  int found = 0;
  int appliedWhenFound = -1;
  QObject::connect(&monitor_, &SystemMonitor::sourcesFound, [&] {
    ++found;
    appliedWhenFound = applied_;
  });
  EXPECT_FALSE(monitor_.kindsWithoutSource().has_value());
  monitor_.start();
  scheduler_.advanceBy(0);
  EXPECT_EQ(found, 1);
  EXPECT_EQ(appliedWhenFound, 0);  // announced before the first sample's sampleApplied
  EXPECT_EQ(monitor_.kindsWithoutSource(), std::vector<MetricKind>{});
  scheduler_.advanceBy(20.0);
  monitor_.setPanelOpen(true);
  scheduler_.advanceBy(3.0);
  EXPECT_GT(applied_, 4);
  EXPECT_EQ(found, 1);
}

TEST(SystemMonitorBareMachine, ABareMachineHasNoSourceForGpuTemperatureOrPower) {
  ManualScheduler scheduler;
  FakePlatform platform(FakeMachine::bareMachine(), scheduler);
  SystemMonitor monitor(platform, scheduler);
  monitor.start();
  scheduler.advanceBy(0);
  EXPECT_EQ(monitor.kindsWithoutSource(),
            (std::vector<MetricKind>{MetricKind::gpu, MetricKind::temp, MetricKind::pwr}));
}

TEST_F(SystemMonitorTest, FirstTickComesAtOnceAfterStartThenEveryFiveSeconds) {
  scheduler_.advanceBy(3.0);
  monitor_.start();
  scheduler_.advanceBy(0);
  EXPECT_EQ(appliedAt_, (std::vector<double>{3.0}));
  scheduler_.advanceBy(4.999);
  EXPECT_EQ(applied_, 1);
  scheduler_.advanceBy(10.001);
  EXPECT_EQ(appliedAt_, (std::vector<double>{3.0, 8.0, 13.0, 18.0}));
  EXPECT_EQ(monitor_.timerInterval(), 5.0);
}

TEST_F(SystemMonitorTest, OpeningTwiceRestartsTheTimerOnce) {
  monitor_.start();
  monitor_.setPanelOpen(true);
  monitor_.setPanelOpen(true);
  EXPECT_EQ(scheduler_.startedTimerIntervals(), (std::vector<double>{5.0, 1.0}));
  EXPECT_EQ(scheduler_.activeTimerCount(), 1u);
  EXPECT_TRUE(monitor_.panelOpen());
}

TEST_F(SystemMonitorTest, ClosingAnAlreadyClosedPanelDoesNothing) {
  monitor_.start();
  scheduler_.advanceBy(2.0);
  monitor_.setPanelOpen(false);
  EXPECT_EQ(scheduler_.startedTimerIntervals(), (std::vector<double>{5.0}));
  scheduler_.advanceBy(3.0);
  EXPECT_EQ(appliedAt_, (std::vector<double>{0.0, 5.0}));  // the old rhythm goes on
}

TEST_F(SystemMonitorTest, ClosingANeverStartedMonitorStartsNothing) {
  monitor_.setPanelOpen(false);
  EXPECT_FALSE(monitor_.hasTimer());
  scheduler_.advanceBy(10.0);
  EXPECT_EQ(applied_, 0);
}

TEST_F(SystemMonitorTest, OpeningSamplesAtOnceThenEverySecondAndClosingSlowsDown) {
  monitor_.start();
  scheduler_.advanceBy(2.5);
  monitor_.setPanelOpen(true);
  scheduler_.advanceBy(2.0);
  EXPECT_EQ(appliedAt_, (std::vector<double>{0.0, 2.5, 3.5, 4.5}));
  monitor_.setPanelOpen(false);
  scheduler_.advanceBy(6.0);
  EXPECT_EQ(appliedAt_, (std::vector<double>{0.0, 2.5, 3.5, 4.5, 4.5, 9.5}));
  EXPECT_EQ(scheduler_.startedTimerIntervals(), (std::vector<double>{5.0, 1.0, 5.0}));
}

TEST_F(SystemMonitorTest, StartUsesTheSlowRateEvenWhenTheFlagSaysOpen) {
  monitor_.setPanelOpenFlag(true);
  EXPECT_FALSE(monitor_.hasTimer());  // the flag alone restarts nothing
  monitor_.start();
  EXPECT_EQ(monitor_.timerInterval(), 5.0);
  EXPECT_TRUE(monitor_.panelOpen());
}

TEST_F(SystemMonitorTest, FlagAndRestartTogetherActLikeSetPanelOpen) {
  monitor_.start();
  scheduler_.advanceBy(1.0);
  monitor_.setPanelOpenFlag(true);
  monitor_.restartTimer(SamplingRateControl::openInterval);
  scheduler_.advanceBy(1.0);
  EXPECT_EQ(appliedAt_, (std::vector<double>{0.0, 1.0, 2.0}));
  // The flag now matches, so the same change through setPanelOpen does nothing more.
  monitor_.setPanelOpen(true);
  EXPECT_EQ(scheduler_.startedTimerIntervals(), (std::vector<double>{5.0, 1.0}));
}

TEST_F(SystemMonitorTest, AbsentGpuAfterAValueClearsTheGpu) {
  monitor_.start();
  scheduler_.advanceBy(0);
  ASSERT_TRUE(monitor_.current().gpu.has_value());
  platform_.change([](FakeMachine& machine) { machine.accelerators = std::nullopt; });
  scheduler_.advanceBy(5.0);
  EXPECT_FALSE(monitor_.current().gpu.has_value());
}

TEST_F(SystemMonitorTest, AbsentTemperatureBlanksRatherThanKeepingTheOldValue) {
  monitor_.start();
  scheduler_.advanceBy(0);
  EXPECT_EQ(monitor_.current().temperatureC, 51.0);
  platform_.change([](FakeMachine& machine) { machine.temperatureSensors.clear(); });
  scheduler_.advanceBy(5.0);
  EXPECT_FALSE(monitor_.current().temperatureC.has_value());
}

// The times the history holds, oldest first.
std::vector<double> historyTimes(const SystemMonitor& monitor) {
  std::vector<double> times;
  for (std::size_t i = 0; i < monitor.history().size(); ++i) {
    times.push_back(monitor.history().at(i).takenAt);
  }
  return times;
}

TEST_F(SystemMonitorTest, HistoryIsEmptyUntilTheFirstSample) {
  scheduler_.advanceBy(30.0);
  EXPECT_TRUE(monitor_.history().empty());
  monitor_.start();
  scheduler_.advanceBy(0);
  ASSERT_EQ(monitor_.history().size(), 1u);
  EXPECT_EQ(monitor_.history().at(0), (TimedSample{30.0, monitor_.current()}));
}

TEST_F(SystemMonitorTest, AClosedPanelsMinuteHoldsASampleEveryFiveSecondsAndTakesNoMore) {
  monitor_.start();
  scheduler_.advanceBy(60.0);
  EXPECT_EQ(historyTimes(monitor_), (std::vector<double>{0.0, 5.0, 10.0, 15.0, 20.0, 25.0, 30.0,
                                                         35.0, 40.0, 45.0, 50.0, 55.0, 60.0}));
  // Filled by the samples the closed panel takes anyway: one timer, at the slow rate.
  EXPECT_EQ(samplesTaken(), 13);
  EXPECT_EQ(applied_, 13);
  EXPECT_EQ(scheduler_.startedTimerIntervals(), (std::vector<double>{5.0}));
  EXPECT_EQ(scheduler_.activeTimerCount(), 1u);
  EXPECT_EQ(monitor_.history().at(12).sample, monitor_.current());
}

TEST_F(SystemMonitorTest, AnOpenPanelFillsTheRingWithAMinuteOfSecondsAndPushesOutTheOldest) {
  monitor_.start();
  scheduler_.advanceBy(10.0);  // 0, 5, 10 while closed
  monitor_.setPanelOpen(true);
  scheduler_.advanceBy(70.0);  // 10 … 80, one a second
  ASSERT_EQ(monitor_.history().size(), SampleHistory::capacity);
  const std::vector<double> times = historyTimes(monitor_);
  EXPECT_EQ(times.front(), 20.0);
  EXPECT_EQ(times.back(), 80.0);
  for (std::size_t i = 1; i < times.size(); ++i)
    EXPECT_EQ(times[i] - times[i - 1], 1.0) << i;
}

TEST_F(SystemMonitorTest, HistoryFollowsTheRateThroughOpeningAndClosing) {
  monitor_.start();
  scheduler_.advanceBy(7.0);
  monitor_.setPanelOpen(true);
  scheduler_.advanceBy(2.0);
  monitor_.setPanelOpen(false);
  scheduler_.advanceBy(10.0);
  // The restarts' own samples are kept like any other, in the order they were taken.
  EXPECT_EQ(historyTimes(monitor_),
            (std::vector<double>{0.0, 5.0, 7.0, 8.0, 9.0, 9.0, 14.0, 19.0}));
}

TEST_F(SystemMonitorTest, AReadingThatGoesMissingIsMissingInTheHistory) {
  monitor_.start();
  scheduler_.advanceBy(0);
  platform_.change([](FakeMachine& machine) {
    machine.accelerators = std::nullopt;
    machine.temperatureSensors.clear();
  });
  scheduler_.advanceBy(5.0);
  ASSERT_EQ(monitor_.history().size(), 2u);
  EXPECT_TRUE(monitor_.history().at(0).sample.gpu.has_value());
  EXPECT_TRUE(monitor_.history().at(0).sample.temperatureC.has_value());
  EXPECT_FALSE(monitor_.history().at(1).sample.gpu.has_value());
  EXPECT_FALSE(monitor_.history().at(1).sample.temperatureC.has_value());
}

TEST_F(SystemMonitorTest, EveryFieldIsTheSamplersFigureUnchanged) {
  // A second sampler over an identical machine, driven at the same moments, gives the figures
  // the monitor must publish: nothing smoothed, rounded or kept from before.
  FakePlatform twin(FakeMachine::typicalLaptop(), scheduler_);
  MetricSampler reference(twin);
  const auto load = [](FakeMachine& machine) {
    machine.addCpuTicks(700, 300);
    machine.addEnergy("CPU Energy", 3'000'000'000);
    machine.disk = DiskCapacities{100'000, 1'000'000};
    machine.accelerators = std::nullopt;
  };

  monitor_.start();
  scheduler_.advanceBy(0);
  EXPECT_EQ(monitor_.current(), reference.sample());
  platform_.change(load);
  twin.change(load);
  scheduler_.advanceBy(5.0);
  const MetricSample expected = reference.sample();
  EXPECT_EQ(monitor_.current(), expected);
  EXPECT_DOUBLE_EQ(monitor_.current().cpu, 0.7);
  EXPECT_DOUBLE_EQ(*monitor_.current().systemPowerWatts, 0.6);
  EXPECT_EQ(applied_, 2);
}

TEST_F(SystemMonitorTest, RestartDoesNotResetTheSampler) {
  monitor_.start();
  scheduler_.advanceBy(2.0);
  platform_.change([](FakeMachine& machine) { machine.addCpuTicks(100, 100); });
  scheduler_.advanceBy(1.0);
  platform_.change([](FakeMachine& machine) { machine.addCpuTicks(200, 0); });
  monitor_.setPanelOpen(true);
  scheduler_.advanceBy(0);
  // The first tick after the restart covers everything since the tick at 0 s.
  EXPECT_DOUBLE_EQ(monitor_.current().cpu, 0.75);
}

TEST_F(SystemMonitorTest, DiskRefreshCountRunsOnAcrossRestarts) {
  monitor_.start();  // call 1 at 0 s
  scheduler_.advanceBy(0);
  monitor_.setPanelOpen(true);   // call 2 at once, then one per second
  scheduler_.advanceBy(6.0);     // calls 3 … 8
  monitor_.setPanelOpen(false);  // call 9
  scheduler_.advanceBy(0);
  EXPECT_EQ(samplesTaken(), 9);
  EXPECT_EQ(platform_.readCounts().disk, 1);
  monitor_.setPanelOpen(true);  // call 10 reads the disk
  scheduler_.advanceBy(0);
  EXPECT_EQ(platform_.readCounts().disk, 2);
}

TEST_F(SystemMonitorTest, CancelledTimerTakesNoMoreSamples) {
  monitor_.start();
  scheduler_.advanceBy(5.0);
  monitor_.cancelTimer();
  EXPECT_FALSE(monitor_.hasTimer());
  EXPECT_FALSE(monitor_.timerInterval().has_value());
  EXPECT_EQ(scheduler_.activeTimerCount(), 0u);
  scheduler_.advanceBy(60.0);
  EXPECT_EQ(applied_, 2);
  monitor_.cancelTimer();  // twice is harmless
}

// A sampling queue whose main-thread deliveries wait until the test releases them.
class HeldDeliveries final : public SamplingQueue {
 public:
  explicit HeldDeliveries(ManualScheduler& scheduler) : scheduler_(scheduler) {}
  std::unique_ptr<RepeatingTimer> startRepeatingTimer(double interval,
                                                      std::function<void()> tick) override {
    return scheduler_.startRepeatingTimer(interval, std::move(tick));
  }
  void postToMain(std::function<void()> task) override { held_.push_back(std::move(task)); }
  void release() {
    while (!held_.empty()) {
      auto task = std::move(held_.front());
      held_.pop_front();
      task();
    }
  }
  std::size_t heldCount() const { return held_.size(); }

 private:
  ManualScheduler& scheduler_;
  std::deque<std::function<void()>> held_;
};

TEST(SystemMonitor, DeliveryAfterTheMonitorIsGoneDoesNothing) {
  ManualScheduler scheduler;
  HeldDeliveries queue(scheduler);
  FakePlatform platform(FakeMachine::typicalLaptop(), scheduler);
  auto monitor = std::make_unique<SystemMonitor>(platform, queue);
  monitor->start();
  scheduler.advanceBy(5.0);
  EXPECT_EQ(queue.heldCount(), 2u);
  EXPECT_EQ(monitor->current(), MetricSample{});  // samples travel only through the main thread
  monitor.reset();
  EXPECT_EQ(scheduler.activeTimerCount(), 0u);  // destroying the monitor ends its timer
  queue.release();                              // must not touch the destroyed monitor
  scheduler.advanceBy(60.0);
  EXPECT_EQ(queue.heldCount(), 0u);
}

TEST(SystemMonitor, SampleTakenBeforeARestartMayStillBeApplied) {
  ManualScheduler scheduler;
  HeldDeliveries queue(scheduler);
  FakePlatform platform(FakeMachine::typicalLaptop(), scheduler);
  SystemMonitor monitor(platform, queue);
  monitor.start();
  scheduler.advanceBy(0);
  monitor.setPanelOpen(true);
  queue.release();  // the stale delivery and the fresh one, in order
  EXPECT_EQ(monitor.current().batteryPercent, 81);
  EXPECT_EQ(platform.readCounts().cpuTicks, 1);  // the fresh tick has not run yet
  scheduler.advanceBy(0);
  queue.release();
  EXPECT_EQ(platform.readCounts().cpuTicks, 2);
}

}  // namespace
}  // namespace brimly
