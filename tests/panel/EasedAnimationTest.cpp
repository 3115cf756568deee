#include "panel/EasedAnimation.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(EasedAnimation, MovesAlongTheCurveOverItsDuration) {
  EasedAnimation bar(0.5, TimingCurve::easeOut(), 0.2);
  bar.animateTo(0.6, 1.0);
  EXPECT_EQ(bar.value(1.0), 0.2);
  EXPECT_NEAR(bar.value(1.25), 0.2 + 0.4 * TimingCurve::easeOut()(0.5), 1e-12);
  EXPECT_EQ(bar.value(1.5), 0.6);
  EXPECT_TRUE(bar.isRunning(1.49));
  EXPECT_FALSE(bar.isRunning(1.5));
}

TEST(EasedAnimation, ANewTargetStartsFromTheCurrentValue) {
  EasedAnimation bar(0.5, TimingCurve::linear(), 0.0);
  bar.animateTo(1.0, 0.0);
  bar.animateTo(0.0, 0.25);
  EXPECT_NEAR(bar.value(0.25), 0.5, 1e-9);
  EXPECT_NEAR(bar.value(0.5), 0.25, 1e-9);
  EXPECT_EQ(bar.value(0.75), 0.0);
}

TEST(EasedAnimation, AnUnchangedTargetDoesNotAnimateAgain) {
  EasedAnimation bar(0.5, TimingCurve::linear(), 0.3);
  bar.animateTo(0.3, 0.0);
  EXPECT_FALSE(bar.isRunning(0.0));
  bar.animateTo(0.8, 1.0);
  bar.animateTo(0.8, 1.4);  // no restart: it still arrives at 1.5
  EXPECT_EQ(bar.value(1.5), 0.8);
}

TEST(EasedAnimation, HoldsStillDuringTheDelay) {
  EasedAnimation fade(0.2, TimingCurve::linear(), 0.0);
  fade.animateTo(1.0, 0.0, 0.1);
  EXPECT_EQ(fade.value(0.05), 0.0);
  EXPECT_TRUE(fade.isRunning(0.05));
  EXPECT_NEAR(fade.value(0.2), 0.5, 1e-9);
}

TEST(EasedAnimation, ANegativeDelaySetsOffFromHereAsIfItHadBegunEarlier) {
  EasedAnimation bar(0.5, TimingCurve::linear(), 0.0);
  bar.animateTo(1.0, 0.0);
  bar.animateTo(0.0, 0.25, -0.05);  // from 0.5, a tenth of the way already covered
  EXPECT_NEAR(bar.value(0.25), 0.45, 1e-9);
  EXPECT_NEAR(bar.value(0.5), 0.2, 1e-9);
  EXPECT_TRUE(bar.isRunning(0.69));
  EXPECT_FALSE(bar.isRunning(0.7));
  EXPECT_EQ(bar.value(0.7), 0.0);
}

TEST(EasedAnimation, JumpToEndsTheMotion) {
  EasedAnimation bar(0.5);
  bar.animateTo(1.0, 0.0);
  bar.jumpTo(0.4);
  EXPECT_EQ(bar.value(0.1), 0.4);
  EXPECT_FALSE(bar.isRunning(0.1));
}

}  // namespace
}  // namespace brimly
