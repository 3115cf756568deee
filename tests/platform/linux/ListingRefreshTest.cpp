#include "platform/linux/ListingRefresh.h"

#include <gtest/gtest.h>

#include <limits>

#include "FakePlatform.h"

namespace brimly {
namespace {

constexpr double interval = ListingRefresh::intervalSeconds;

TEST(ListingRefresh, TheFirstReadingLists) {
  testing::FakeClock clock;
  ListingRefresh listing(clock);
  EXPECT_TRUE(listing.due());
  EXPECT_FALSE(listing.due());
}

TEST(ListingRefresh, ListsAgainOnceTheIntervalHasPassedSinceTheLastListing) {
  testing::FakeClock clock;
  clock.setNow(100.0);
  ListingRefresh listing(clock);
  ASSERT_TRUE(listing.due());
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

TEST(ListingRefresh, AnEntryGoneAsksForTheNextReadingToList) {
  testing::FakeClock clock;
  ListingRefresh listing(clock);
  ASSERT_TRUE(listing.due());
  listing.entryGone();
  EXPECT_TRUE(listing.due());
  EXPECT_FALSE(listing.due());
}

TEST(ListingRefresh, AClockThatWentBackOrReadsNoNumberLists) {
  testing::FakeClock clock;
  clock.setNow(50.0);
  ListingRefresh listing(clock);
  ASSERT_TRUE(listing.due());
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
