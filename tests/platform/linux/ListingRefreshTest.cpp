#include "platform/linux/ListingRefresh.h"

#include <gtest/gtest.h>

#include <limits>

#include "FakePlatform.h"

namespace brimly {
namespace {

constexpr double interval = ListingRefresh::intervalSeconds;

// A listing on a hand-driven clock, made for the first time at `start`.
class ListingRefreshTest : public ::testing::Test {
 protected:
  void listFirstAt(double start) {
    clock.setNow(start);
    ASSERT_TRUE(listing.due());
  }

  testing::FakeClock clock;
  ListingRefresh listing{clock};
};

TEST_F(ListingRefreshTest, TheFirstReadingLists) {
  EXPECT_TRUE(listing.due());
  EXPECT_FALSE(listing.due());
}

TEST_F(ListingRefreshTest, ListsAgainOnceTheIntervalHasPassedSinceTheLastListing) {
  listFirstAt(100.0);
  clock.setNow(100.0 + interval - 0.5);
  EXPECT_FALSE(listing.due());
  clock.setNow(100.0 + interval);
  EXPECT_TRUE(listing.due());
  // Counted from that listing, not from the first.
  clock.setNow(100.0 + interval + 5.0);
  EXPECT_FALSE(listing.due());
  clock.setNow(100.0 + 2 * interval);
  EXPECT_TRUE(listing.due());
}

TEST_F(ListingRefreshTest, AnEntryGoneAsksForTheNextReadingToList) {
  listFirstAt(0.0);
  listing.entryGone();
  EXPECT_TRUE(listing.due());
  EXPECT_FALSE(listing.due());
}

TEST_F(ListingRefreshTest, AClockThatWentBackOrReadsNoNumberLists) {
  listFirstAt(50.0);
  clock.setNow(40.0);
  EXPECT_TRUE(listing.due());
  clock.setNow(std::numeric_limits<double>::quiet_NaN());
  EXPECT_TRUE(listing.due());
  EXPECT_TRUE(listing.due());
  clock.setNow(60.0);
  EXPECT_TRUE(listing.due());
  EXPECT_FALSE(listing.due());
}

}  // namespace
}  // namespace brimly
