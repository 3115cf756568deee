#include "desktop/layershell/FramePacing.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

// --- Edge cases ---

TEST(FramePacingEdge, NothingIsDrawnBeforeTheSurfaceHasItsSize) {
  FramePacing pacing;
  pacing.changed();
  EXPECT_FALSE(pacing.isDrawDue());
  EXPECT_FALSE(pacing.hasDrawn());
}

TEST(FramePacingEdge, TheFirstConfigureAsksForAFrameEvenWithoutAChange) {
  FramePacing pacing;
  pacing.configured();
  EXPECT_TRUE(pacing.isDrawDue());
}

TEST(FramePacingEdge, ALaterConfigureOfTheSameSurfaceAsksForNothing) {
  FramePacing pacing;
  pacing.configured();
  pacing.drawn();
  pacing.frameShown();
  pacing.configured();  // compositors may configure several times
  EXPECT_FALSE(pacing.isDrawDue());
}

TEST(FramePacingEdge, ANewSurfaceStartsOverWithoutWaitingForTheOldCallback) {
  FramePacing pacing;
  pacing.configured();
  pacing.drawn();  // its callback never comes: the surface is closed
  pacing.unconfigured();
  EXPECT_FALSE(pacing.hasDrawn());
  EXPECT_FALSE(pacing.isDrawDue());
  pacing.configured();
  EXPECT_TRUE(pacing.isDrawDue());
  EXPECT_FALSE(pacing.isAwaitingFrame());
}

// --- Properties ---

TEST(FramePacing, AStillPanelDrawsNothingAndWaitsForNothing) {
  FramePacing pacing;
  pacing.configured();
  pacing.drawn();
  pacing.frameShown();
  EXPECT_FALSE(pacing.isDrawDue());
  EXPECT_FALSE(pacing.isAwaitingFrame());
  EXPECT_TRUE(pacing.hasDrawn());
}

TEST(FramePacing, ChangesDuringAFrameWaitForItsCallbackAndAreDrawnTogether) {
  FramePacing pacing;
  pacing.configured();
  pacing.drawn();
  pacing.changed();
  pacing.changed();
  EXPECT_FALSE(pacing.isDrawDue());
  EXPECT_TRUE(pacing.isAwaitingFrame());
  pacing.frameShown();
  EXPECT_TRUE(pacing.isDrawDue());
  pacing.drawn();
  pacing.frameShown();
  EXPECT_FALSE(pacing.isDrawDue());
}

TEST(FramePacing, AChangeAfterTheCallbackIsDrawnAtOnce) {
  FramePacing pacing;
  pacing.configured();
  pacing.drawn();
  pacing.frameShown();
  pacing.changed();
  EXPECT_TRUE(pacing.isDrawDue());
}

}  // namespace
}  // namespace brimly
