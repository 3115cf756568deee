#include "sampling/CpuLoad.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(CpuLoad, FirstReadingGivesZeroAndBecomesTheBase) {
  CpuLoad load;
  EXPECT_EQ(load.update(CpuTicks{500, 300, 1000, 200}), 0.0);
  ASSERT_TRUE(load.previousTicks().has_value());
  EXPECT_EQ(*load.previousTicks(), (CpuTicks{500, 300, 1000, 200}));
}

TEST(CpuLoad, CounterThatWrappedStillGivesItsSmallDifference) {
  CpuLoad load;
  load.update(CpuTicks{4'294'967'200u, 0, 1000, 0});
  // user went 4294967200 → 4294967295 → 0 → 104: 200 ticks; idle gained 200.
  EXPECT_DOUBLE_EQ(load.update(CpuTicks{104, 0, 1200, 0}), 0.5);
  EXPECT_EQ(CpuLoad::tickDelta(4'294'967'200u, 104), 200u);
}

TEST(CpuLoad, IdenticalCountersGiveZero) {
  CpuLoad load;
  load.update(CpuTicks{10, 20, 30, 40});
  EXPECT_EQ(load.update(CpuTicks{10, 20, 30, 40}), 0.0);
}

TEST(CpuLoad, FailedReadingGivesZeroAndKeepsThePreviousCounters) {
  CpuLoad load;
  load.update(CpuTicks{100, 0, 100, 0});
  EXPECT_EQ(load.update(std::nullopt), 0.0);
  EXPECT_EQ(*load.previousTicks(), (CpuTicks{100, 0, 100, 0}));
  // The next good reading measures from the last good one.
  EXPECT_DOUBLE_EQ(load.update(CpuTicks{175, 0, 125, 0}), 0.75);
}

TEST(CpuLoad, FailedFirstReadingLeavesNoBase) {
  CpuLoad load;
  EXPECT_EQ(load.update(std::nullopt), 0.0);
  EXPECT_FALSE(load.previousTicks().has_value());
  EXPECT_EQ(load.update(CpuTicks{100, 0, 100, 0}), 0.0);
}

TEST(CpuLoad, CounterGoingBackwardsCountsAsNoTime) {
  // Idle time can step back on tickless kernels; a wrapped subtraction would read it as four
  // billion idle ticks and show an idle machine.
  EXPECT_EQ(CpuLoad::tickDelta(1000, 990), 0u);
  EXPECT_DOUBLE_EQ(CpuLoad::busyFraction(CpuTicks{100, 0, 1000, 0}, CpuTicks{150, 0, 990, 0}), 1.0);
}

TEST(CpuLoad, BusyIsUserSystemAndNiceOverAllFour) {
  // user 30, system 20, idle 40, nice 10 → busy 60 of 100.
  EXPECT_DOUBLE_EQ(CpuLoad::busyFraction(CpuTicks{0, 0, 0, 0}, CpuTicks{30, 20, 40, 10}), 0.6);
  EXPECT_DOUBLE_EQ(CpuLoad::busyFraction(CpuTicks{5, 5, 5, 5}, CpuTicks{5, 5, 105, 5}), 0.0);
  EXPECT_DOUBLE_EQ(CpuLoad::busyFraction(CpuTicks{5, 5, 5, 5}, CpuTicks{105, 5, 5, 5}), 1.0);
}

TEST(CpuLoad, FractionStaysWithinZeroAndOneForAnyCounters) {
  const std::uint32_t values[] = {
      0u, 1u, 7u, 1'000u, 2'147'483'647u, 2'147'483'648u, 4'294'967'295u};
  for (auto a : values) {
    for (auto b : values) {
      const double fraction = CpuLoad::busyFraction(CpuTicks{a, b, a, b}, CpuTicks{b, a, b, a});
      EXPECT_GE(fraction, 0.0);
      EXPECT_LE(fraction, 1.0);
    }
  }
}

}  // namespace
}  // namespace brimly
