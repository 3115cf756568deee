#include "sampling/ReadingThrottle.h"

#include <gtest/gtest.h>

#include <limits>

namespace brimly {
namespace {

TEST(ReadingThrottle, TheFirstReadingAlwaysGoesThrough) {
  ReadingThrottle throttle(0.5);
  EXPECT_TRUE(throttle.admit(1000.0));
}

TEST(ReadingThrottle, AReadingWithinTheSpacingIsHeldBack) {
  ReadingThrottle throttle(0.5);
  EXPECT_TRUE(throttle.admit(10.0));
  EXPECT_FALSE(throttle.admit(10.0));
  EXPECT_FALSE(throttle.admit(10.49));
}

TEST(ReadingThrottle, TheSpacingCountsFromTheLastReadingLetThrough) {
  ReadingThrottle throttle(0.5);
  EXPECT_TRUE(throttle.admit(10.0));
  EXPECT_FALSE(throttle.admit(10.3));  // held back: does not move the start
  EXPECT_TRUE(throttle.admit(10.5));
  EXPECT_FALSE(throttle.admit(10.9));
  EXPECT_TRUE(throttle.admit(11.0));
}

TEST(ReadingThrottle, NoSpacingLetsEveryReadingThrough) {
  for (const double spacing : {0.0, -1.0}) {
    ReadingThrottle throttle(spacing);
    EXPECT_TRUE(throttle.admit(5.0));
    EXPECT_TRUE(throttle.admit(5.0));
    EXPECT_TRUE(throttle.admit(5.0001));
  }
}

TEST(ReadingThrottle, AClockThatWentBackLetsTheReadingThrough) {
  ReadingThrottle throttle(0.5);
  EXPECT_TRUE(throttle.admit(10.0));
  EXPECT_TRUE(throttle.admit(9.9));
  EXPECT_FALSE(throttle.admit(10.1));  // counted from 9.9 now
}

TEST(ReadingThrottle, NaNNeverStallsTheReadings) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  ReadingThrottle spacedByNaN(nan);
  EXPECT_TRUE(spacedByNaN.admit(1.0));
  EXPECT_TRUE(spacedByNaN.admit(1.0));
  ReadingThrottle throttle(0.5);
  EXPECT_TRUE(throttle.admit(nan));
  EXPECT_TRUE(throttle.admit(1.0));
}

}  // namespace
}  // namespace brimly
