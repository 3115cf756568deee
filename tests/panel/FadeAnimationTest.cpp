#include "panel/FadeAnimation.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(FadeAnimation, FadesInAfterTheOpeningDelay) {
  FadeAnimation fade(false);
  fade.setVisible(true, 0.0);
  EXPECT_EQ(fade.opacity(0.0), 0.0);
  EXPECT_EQ(fade.opacity(0.12), 0.0);
  EXPECT_NEAR(fade.opacity(0.21), TimingCurve::easeOut()(0.5), 1e-12);
  EXPECT_TRUE(fade.isRunning(0.29));
  EXPECT_EQ(fade.opacity(0.30), 1.0);
  EXPECT_FALSE(fade.isRunning(0.30));
}

TEST(FadeAnimation, FadesOutAtOnce) {
  FadeAnimation fade(true);
  fade.setVisible(false, 5.0);
  EXPECT_LT(fade.opacity(5.01), 1.0);
  EXPECT_NEAR(fade.opacity(5.09), 1.0 - TimingCurve::easeOut()(0.5), 1e-12);
  EXPECT_EQ(fade.opacity(5.18), 0.0);
}

TEST(FadeAnimation, FollowsTheLatestTargetWithItsOwnDelay) {
  FadeAnimation fade(false);
  fade.setVisible(true, 0.0);
  fade.setVisible(false, 0.2);  // half-way in: fade out from there, no delay
  const double reached = TimingCurve::easeOut()((0.2 - 0.12) / 0.18);
  EXPECT_NEAR(fade.opacity(0.2), reached, 1e-12);
  EXPECT_LT(fade.opacity(0.21), reached);
  EXPECT_EQ(fade.opacity(0.38), 0.0);
  fade.setVisible(true, 0.25);  // and back in: waits the opening delay again
  const double low = fade.opacity(0.25);
  EXPECT_EQ(fade.opacity(0.37), low);
  EXPECT_GT(fade.opacity(0.38), low);
  EXPECT_EQ(fade.opacity(0.55), 1.0);
}

TEST(FadeAnimation, RepeatingTheSameWishChangesNothing) {
  FadeAnimation fade(true);
  fade.setVisible(true, 0.0);
  EXPECT_FALSE(fade.isRunning(0.0));
  EXPECT_EQ(fade.opacity(0.0), 1.0);
  EXPECT_TRUE(fade.isVisible());
}

TEST(FadeAnimation, ClosingDuringTheOpeningDelayStaysHidden) {
  FadeAnimation fade(false);
  fade.setVisible(true, 0.0);
  fade.setVisible(false, 0.05);
  EXPECT_EQ(fade.opacity(0.05), 0.0);
  EXPECT_EQ(fade.opacity(0.2), 0.0);
  EXPECT_FALSE(fade.isVisible());
}

}  // namespace
}  // namespace brimly
