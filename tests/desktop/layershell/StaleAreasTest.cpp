#include "desktop/layershell/StaleAreas.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

const QRect kWhole(0, 0, 600, 148);

TEST(StaleAreasEdge, ANewBufferLacksEverything) {
  StaleAreas stale;
  stale.addBuffer(kWhole);
  EXPECT_EQ(stale.count(), 1);
  EXPECT_EQ(stale.take(0), QRegion(kWhole));
  EXPECT_EQ(stale.take(0), QRegion());
}

TEST(StaleAreasEdge, ResettingForgetsWhatWasLacking) {
  StaleAreas stale;
  stale.reset(2, kWhole);
  stale.take(0);
  stale.reset(0, QRect());
  EXPECT_EQ(stale.count(), 0);
  stale.add(QRegion(1, 1, 1, 1));  // no buffer to lack it
  EXPECT_EQ(stale.count(), 0);
}

TEST(StaleAreas, EachBufferRedrawsWhatChangedSinceItWasLastDrawnInto) {
  StaleAreas stale;
  stale.reset(2, kWhole);
  stale.take(0);
  stale.take(1);
  stale.add(QRegion(10, 10, 5, 5));
  EXPECT_EQ(stale.take(0), QRegion(10, 10, 5, 5));
  stale.add(QRegion(100, 0, 2, 2));
  // The second buffer missed both changes; the first only the last.
  EXPECT_EQ(stale.take(1), QRegion(10, 10, 5, 5) + QRegion(100, 0, 2, 2));
  EXPECT_EQ(stale.take(0), QRegion(100, 0, 2, 2));
}

TEST(StaleAreas, ABufferAddedLaterLacksEverythingAndTheOthersOnlyTheirChanges) {
  StaleAreas stale;
  stale.reset(1, kWhole);
  stale.take(0);
  stale.add(QRegion(1, 2, 3, 4));
  stale.addBuffer(kWhole);
  EXPECT_EQ(stale.take(1), QRegion(kWhole));
  EXPECT_EQ(stale.take(0), QRegion(1, 2, 3, 4));
}

}  // namespace
}  // namespace brimly
