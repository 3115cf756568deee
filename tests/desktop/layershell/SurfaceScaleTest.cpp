#include "desktop/layershell/SurfaceScale.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

const QSize kPanel(600, 148);

// --- Edge cases ---

TEST(SurfaceScaleEdge, NothingKnownIsScaleOne) {
  const SurfaceScale scale = SurfaceScale::choose(std::nullopt, true, {}, {});
  EXPECT_EQ(scale, SurfaceScale::whole(1));
  EXPECT_EQ(scale.bufferScale(), 1);
  EXPECT_FALSE(scale.usesViewport());
  EXPECT_EQ(scale.bufferSize(kPanel), kPanel);
}

TEST(SurfaceScaleEdge, NonsenseFromTheCompositorCountsAsOne) {
  EXPECT_EQ(SurfaceScale::whole(0), SurfaceScale::whole(1));
  EXPECT_EQ(SurfaceScale::whole(-3), SurfaceScale::whole(1));
  EXPECT_EQ(SurfaceScale::fractional(0).ratio(), 1.0);
  EXPECT_EQ(SurfaceScale::choose(0, true, {2}, {2}), SurfaceScale::whole(2));
}

TEST(SurfaceScaleEdge, AFractionNeedsAViewportToBeShown) {
  EXPECT_EQ(SurfaceScale::choose(180, false, {2}, {2}), SurfaceScale::whole(2));
  EXPECT_EQ(SurfaceScale::choose(180, true, {2}, {2}), SurfaceScale::fractional(180));
}

TEST(SurfaceScaleEdge, BeforeEnteringAnOutputTheLargestOfAllCounts) {
  EXPECT_EQ(SurfaceScale::choose(std::nullopt, true, {}, {1, 2}), SurfaceScale::whole(2));
  EXPECT_EQ(SurfaceScale::choose(std::nullopt, true, {1}, {1, 2}), SurfaceScale::whole(1));
}

TEST(SurfaceScaleEdge, OnTwoOutputsTheSharperCounts) {
  EXPECT_EQ(SurfaceScale::choose(std::nullopt, true, {1, 3}, {1, 3}), SurfaceScale::whole(3));
}

TEST(SurfaceScaleEdge, HalfPixelsRoundAwayFromZero) {
  // 1.25 × 150 = 187.5
  EXPECT_EQ(SurfaceScale::fractional(150).bufferSize(QSize(150, 2)), QSize(188, 3));
}

TEST(SurfaceScaleEdge, AlignedRegionsStayInsideTheSurface) {
  const SurfaceScale scale = SurfaceScale::fractional(150);  // 1.25: every fourth point
  EXPECT_EQ(scale.alignedRegion(QRegion(597, 145, 3, 3), kPanel), QRegion(596, 144, 4, 4));
  EXPECT_EQ(scale.alignedRegion(QRegion(), kPanel), QRegion());
}

// --- Properties ---

TEST(SurfaceScale, WholeScalesMultiplyTheBufferAndSetTheBufferScale) {
  const SurfaceScale two = SurfaceScale::whole(2);
  EXPECT_EQ(two.ratio(), 2.0);
  EXPECT_EQ(two.bufferScale(), 2);
  EXPECT_FALSE(two.usesViewport());
  EXPECT_EQ(two.bufferSize(kPanel), QSize(1200, 296));
}

TEST(SurfaceScale, FractionsGoThroughAViewportAtBufferScaleOne) {
  const SurfaceScale oneAndAHalf = SurfaceScale::fractional(180);
  EXPECT_EQ(oneAndAHalf.ratio(), 1.5);
  EXPECT_EQ(oneAndAHalf.bufferScale(), 1);
  EXPECT_TRUE(oneAndAHalf.usesViewport());
  EXPECT_EQ(oneAndAHalf.bufferSize(kPanel), QSize(900, 222));
  EXPECT_EQ(SurfaceScale::fractional(210).bufferSize(kPanel), QSize(1050, 259));  // 1.75
}

TEST(SurfaceScale, TheCompositorsFractionWinsOverTheOutputs) {
  EXPECT_EQ(SurfaceScale::choose(180, true, {2}, {2}).ratio(), 1.5);
}

TEST(SurfaceScale, AlignedRegionsFallOnWholePixels) {
  const SurfaceScale oneAndAHalf = SurfaceScale::fractional(180);  // every second point
  EXPECT_EQ(oneAndAHalf.alignedRegion(QRegion(11, 5, 3, 1), kPanel), QRegion(10, 4, 4, 2));
  EXPECT_EQ(SurfaceScale::whole(2).alignedRegion(QRegion(11, 5, 3, 1), kPanel),
            QRegion(11, 5, 3, 1));
}

TEST(SurfaceScale, DamageCoversEveryPixelTheRegionTouches) {
  EXPECT_EQ(SurfaceScale::whole(2).bufferRegion(QRegion(10, 4, 4, 2), kPanel),
            QRegion(20, 8, 8, 4));
  EXPECT_EQ(SurfaceScale::fractional(180).bufferRegion(QRegion(10, 4, 4, 2), kPanel),
            QRegion(15, 6, 6, 3));
  // Unaligned at 1.5: 11 → 16.5 and 14 → 21, so pixels 16 to 20.
  EXPECT_EQ(SurfaceScale::fractional(180).bufferRegion(QRegion(11, 4, 3, 2), kPanel),
            QRegion(16, 6, 5, 3));
}

}  // namespace
}  // namespace brimly
