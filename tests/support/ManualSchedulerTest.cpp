#include "ManualScheduler.h"

#include <gtest/gtest.h>

#include <string>

namespace brimly::testing {
namespace {

TEST(ManualScheduler, NewTimerTicksAtOnceThenEveryInterval) {
  ManualScheduler scheduler;
  std::vector<double> ticks;
  auto timer = scheduler.startRepeatingTimer(5.0, [&] { ticks.push_back(scheduler.nowSeconds()); });
  EXPECT_TRUE(ticks.empty());  // nothing runs until time is driven
  scheduler.advanceBy(0);
  EXPECT_EQ(ticks, (std::vector<double>{0.0}));
  scheduler.advanceBy(12);
  EXPECT_EQ(ticks, (std::vector<double>{0.0, 5.0, 10.0}));
  EXPECT_EQ(scheduler.nowSeconds(), 12.0);
}

TEST(ManualScheduler, CancelledOrDestroyedTimersStopTicking) {
  ManualScheduler scheduler;
  int ticks = 0;
  auto timer = scheduler.startRepeatingTimer(1.0, [&] { ++ticks; });
  scheduler.advanceBy(1.0);
  EXPECT_EQ(ticks, 2);
  timer->cancel();
  scheduler.advanceBy(5.0);
  EXPECT_EQ(ticks, 2);
  {
    auto other = scheduler.startRepeatingTimer(1.0, [&] { ++ticks; });
    scheduler.advanceBy(0);
  }
  scheduler.advanceBy(5.0);
  EXPECT_EQ(ticks, 3);
  EXPECT_EQ(scheduler.activeTimerCount(), 0u);
  EXPECT_EQ(scheduler.startedTimerIntervals(), (std::vector<double>{1.0, 1.0}));
}

TEST(ManualScheduler, MainTasksPostedByATickRunRightAfterIt) {
  ManualScheduler scheduler;
  std::string log;
  auto timer = scheduler.startRepeatingTimer(1.0, [&] {
    log += "t";
    scheduler.postToMain([&] { log += "m"; });
  });
  scheduler.advanceBy(2.0);
  EXPECT_EQ(log, "tmtmtm");
}

TEST(ManualScheduler, DeferredTasksRunOnceAtTheirTimeUnlessCancelled) {
  ManualScheduler scheduler;
  std::string log;
  auto first = scheduler.runAfter(0.4, [&] { log += "a"; });
  auto second = scheduler.runAfter(0.4, [&] { log += "b"; });
  auto third = scheduler.runAfter(0.2, [&] { log += "c"; });
  second->cancel();
  scheduler.advanceBy(0.3999);
  EXPECT_EQ(log, "c");
  scheduler.advanceBy(0.0001);
  EXPECT_EQ(log, "ca");
  scheduler.advanceBy(10);
  EXPECT_EQ(log, "ca");
  EXPECT_EQ(scheduler.pendingDeferredTaskCount(), 0u);
}

TEST(ManualScheduler, DroppingAHandleDoesNotCancelTheTask) {
  ManualScheduler scheduler;
  int runs = 0;
  scheduler.runAfter(0.4, [&] { ++runs; });
  scheduler.advanceBy(0.4);
  EXPECT_EQ(runs, 1);
}

TEST(ManualScheduler, TiesRunInSchedulingOrder) {
  ManualScheduler scheduler;
  std::string log;
  scheduler.runAfter(1.0, [&] { log += "1"; });
  auto timer = scheduler.startRepeatingTimer(1.0, [&] { log += "t"; });
  scheduler.runAfter(1.0, [&] { log += "2"; });
  scheduler.advanceBy(1.0);
  EXPECT_EQ(log, "t12t");
}

TEST(ManualScheduler, RepeatedSmallStepsDoNotDrift) {
  ManualScheduler scheduler;
  int runs = 0;
  scheduler.runAfter(0.4, [&] { ++runs; });
  for (int i = 0; i < 4; ++i) scheduler.advanceBy(0.1);
  EXPECT_EQ(runs, 1);
}

}  // namespace
}  // namespace brimly::testing
