#include "panel/views/FrameTimer.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(FrameTimer, RunsEveryIntervalOnlyOnceStarted) {
  FrameTimer timer(33);
  EXPECT_FALSE(timer.isRunning());
  timer.run();
  EXPECT_TRUE(timer.isRunning());
  EXPECT_EQ(timer.msToNextFrame(), 33);
  timer.stop();
  EXPECT_FALSE(timer.isRunning());
}

TEST(FrameTimer, SkippedFramesAreFollowedByTheNormalPace) {
  FrameTimer timer(33);
  int frames = 0;
  QObject::connect(&timer, &FrameTimer::frame, [&frames](double) { ++frames; });
  timer.resumeAfter(4);
  EXPECT_TRUE(timer.isRunning());
  EXPECT_EQ(timer.msToNextFrame(), 132);
  timer.tick();
  EXPECT_EQ(frames, 1);
  EXPECT_EQ(timer.msToNextFrame(), 33);
}

TEST(FrameTimer, AFrameSaysWhenTheNextOneComes) {
  FrameTimer timer(33);
  int skip = 3;
  QObject::connect(&timer, &FrameTimer::frame,
                   [&timer, &skip](double) { timer.resumeAfter(skip); });
  timer.run();
  timer.tick();
  EXPECT_EQ(timer.msToNextFrame(), 99);
  skip = 1;
  timer.tick();
  EXPECT_EQ(timer.msToNextFrame(), 33);
  timer.tick();
  EXPECT_EQ(timer.msToNextFrame(), 33);
  EXPECT_TRUE(timer.isRunning());
}

TEST(FrameTimer, AFrameThatStopsTheTimerStopsIt) {
  FrameTimer timer(33);
  QObject::connect(&timer, &FrameTimer::frame, [&timer](double) { timer.stop(); });
  timer.resumeAfter(2);
  timer.tick();
  EXPECT_FALSE(timer.isRunning());
}

TEST(FrameTimer, ResumingWaitsAtLeastOneFrame) {
  FrameTimer timer;
  timer.resumeAfter(0);
  EXPECT_EQ(timer.msToNextFrame(), FrameTimer::displayIntervalMs);
}

TEST(FrameTimer, FramesCarryTheClocksTime) {
  FrameTimer timer;
  timer.setClock([] { return 12.5; });
  double seen = 0.0;
  QObject::connect(&timer, &FrameTimer::frame, [&seen](double now) { seen = now; });
  timer.tick();
  EXPECT_EQ(seen, 12.5);
}

}  // namespace
}  // namespace brimly
