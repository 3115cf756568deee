#include "panel/SpringAnimation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace brimly {
namespace {

TEST(SpringAnimation, AngularFrequencyComesFromTheResponse) {
  EXPECT_NEAR(SpringAnimation(0.42).angularFrequency(), 2.0 * std::numbers::pi / 0.42, 1e-12);
}

TEST(SpringAnimation, CriticallyDampedFollowsTheClosedForm) {
  // x(t) = 1 - (1 + w t) e^(-w t) from rest at 0 towards 1, w = 2 pi / 0.42.
  SpringAnimation spring(0.42, 1.0);
  spring.retarget(1.0, 10.0);
  EXPECT_EQ(spring.value(10.0), 0.0);
  EXPECT_NEAR(spring.value(10.1), 0.440833754921, 1e-9);
  EXPECT_NEAR(spring.value(10.21), 0.821025553586, 1e-9);
  EXPECT_NEAR(spring.value(10.42), 0.986399068534, 1e-9);
}

TEST(SpringAnimation, CriticallyDampedNeverOvershoots) {
  SpringAnimation spring(0.42, 1.0);
  spring.retarget(1.0, 0.0);
  double previous = 0.0;
  for (int frame = 1; frame <= 120; ++frame) {
    const double value = spring.value(frame / 60.0);
    EXPECT_LE(value, 1.0);
    EXPECT_GE(value, previous);
    previous = value;
  }
}

TEST(SpringAnimation, SettlesExactlyOnTheTargetWithinASecond) {
  SpringAnimation spring(0.42, 1.0);
  spring.retarget(1.0, 0.0);
  EXPECT_FALSE(spring.isSettled(0.3));
  EXPECT_TRUE(spring.isSettled(1.0));
  EXPECT_EQ(spring.value(1.0), 1.0);
  EXPECT_EQ(spring.velocity(1.0), 0.0);
}

TEST(SpringAnimation, RetargetingInMidFlightKeepsValueAndVelocity) {
  SpringAnimation spring(0.42, 1.0);
  spring.retarget(1.0, 0.0);
  const double valueBefore = spring.value(0.1);
  const double velocityBefore = spring.velocity(0.1);
  ASSERT_GT(velocityBefore, 0.0);
  spring.retarget(0.0, 0.1);
  EXPECT_DOUBLE_EQ(spring.value(0.1), valueBefore);
  EXPECT_DOUBLE_EQ(spring.velocity(0.1), velocityBefore);
  // Still moving outwards for a moment, then it turns round and comes back to 0.
  EXPECT_GT(spring.value(0.11), valueBefore);
  EXPECT_LT(spring.value(0.4), valueBefore);
  EXPECT_EQ(spring.value(2.0), 0.0);
}

TEST(SpringAnimation, SameTargetAgainChangesNothing) {
  SpringAnimation spring(0.42, 1.0);
  spring.retarget(1.0, 0.0);
  const double at = spring.value(0.2);
  spring.retarget(1.0, 0.1);
  EXPECT_EQ(spring.value(0.2), at);
}

TEST(SpringAnimation, JumpToRestsAtTheValue) {
  SpringAnimation spring(0.42, 1.0);
  spring.retarget(1.0, 0.0);
  spring.jumpTo(0.25);
  EXPECT_EQ(spring.value(0.05), 0.25);
  EXPECT_TRUE(spring.isSettled(0.05));
}

TEST(SpringAnimation, UnderdampedOvershoots) {
  SpringAnimation spring(0.5, 0.5);
  spring.retarget(1.0, 0.0);
  double peak = 0.0;
  for (int frame = 1; frame <= 120; ++frame)
    peak = std::max(peak, spring.value(frame / 120.0));
  EXPECT_GT(peak, 1.05);
}

// Every regime must satisfy the spring's equation of motion x'' + 2 zeta w x' + w^2 (x - target)
// = 0, checked here with finite differences of the reported values.
class SpringEquation : public ::testing::TestWithParam<double> {};

TEST_P(SpringEquation, ValuesObeyTheEquationOfMotion) {
  const double zeta = GetParam();
  SpringAnimation spring(0.42, zeta, 0.0, 0.0);
  spring.retarget(3.0, 0.0);
  spring.retarget(-1.0, 0.05);  // start the checked stretch with a non-zero velocity
  const double w = spring.angularFrequency();
  const double h = 1e-4;
  for (double t : {0.06, 0.1, 0.2, 0.35}) {
    const double x = spring.value(t);
    const double v = (spring.value(t + h) - spring.value(t - h)) / (2.0 * h);
    const double a = (spring.value(t + h) - 2.0 * x + spring.value(t - h)) / (h * h);
    EXPECT_NEAR(a + 2.0 * zeta * w * v + w * w * (x + 1.0), 0.0, 1e-4 * w * w) << "t " << t;
    EXPECT_NEAR(spring.velocity(t), v, 1e-5 * w) << "t " << t;
  }
}

INSTANTIATE_TEST_SUITE_P(Regimes, SpringEquation, ::testing::Values(0.5, 1.0, 1.6));

}  // namespace
}  // namespace brimly
