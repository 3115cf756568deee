#include "panel/TimingCurve.h"

#include <gtest/gtest.h>

#include <limits>

namespace brimly {
namespace {

TEST(TimingCurve, EaseOutStartsAndEndsExactly) {
  const auto curve = TimingCurve::easeOut();
  EXPECT_EQ(curve(0.0), 0.0);
  EXPECT_EQ(curve(1.0), 1.0);
}

TEST(TimingCurve, ClampsOutsideTheDuration) {
  const auto curve = TimingCurve::easeOut();
  EXPECT_EQ(curve(-0.5), 0.0);
  EXPECT_EQ(curve(1.5), 1.0);
  EXPECT_EQ(curve(std::numeric_limits<double>::quiet_NaN()), 0.0);
}

TEST(TimingCurve, EaseOutMatchesTheCubicBezierZeroZeroPointFiveEightOne) {
  // Values of cubic-bezier(0, 0, 0.58, 1) solved independently by bisection.
  const auto curve = TimingCurve::easeOut();
  EXPECT_NEAR(curve(0.25), 0.378138130825, 1e-7);
  EXPECT_NEAR(curve(0.5), 0.684643187427, 1e-7);
  EXPECT_NEAR(curve(0.75), 0.906535349281, 1e-7);
}

TEST(TimingCurve, EaseOutRisesMonotonicallyAndLeadsTheLine) {
  const auto curve = TimingCurve::easeOut();
  double previous = 0.0;
  for (int i = 1; i < 100; ++i) {
    const double x = i / 100.0;
    const double y = curve(x);
    EXPECT_GT(y, previous) << x;
    EXPECT_GE(y, x) << x;
    previous = y;
  }
}

TEST(TimingCurve, EaseInOutIsSymmetricAndFlatAtBothEnds) {
  const auto curve = TimingCurve::easeInOut();
  EXPECT_EQ(curve(0.0), 0.0);
  EXPECT_EQ(curve(1.0), 1.0);
  EXPECT_NEAR(curve(0.5), 0.5, 1e-9);
  for (double x : {0.1, 0.25, 0.4})
    EXPECT_NEAR(curve(x), 1.0 - curve(1.0 - x), 1e-9) << x;
  // Slow at both ends: it lags the line early on and leads it late.
  EXPECT_LT(curve(0.05), 0.01);
  EXPECT_GT(curve(0.95), 0.99);
}

TEST(TimingCurve, LinearIsTheIdentity) {
  const auto curve = TimingCurve::linear();
  for (double x : {0.1, 0.33, 0.5, 0.9})
    EXPECT_NEAR(curve(x), x, 1e-8);
}

}  // namespace
}  // namespace brimly
