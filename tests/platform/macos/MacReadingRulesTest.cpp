#include "platform/macos/MacReadingRules.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace brimly {
namespace {

TEST(PresentArea, AnEmptyRectangleIsNoArea) {
  EXPECT_EQ(presentArea(Rect{}), std::nullopt);
  EXPECT_EQ(presentArea(Rect{0.0, 1085.0, 0.0, 32.0}), std::nullopt);
  EXPECT_EQ(presentArea(Rect{0.0, 1085.0, 656.0, 0.0}), std::nullopt);
}

TEST(PresentArea, ANegativeOrUnorderedSizeIsNoArea) {
  EXPECT_EQ(presentArea(Rect{10.0, 10.0, -5.0, 32.0}), std::nullopt);
  EXPECT_EQ(presentArea(Rect{10.0, 10.0, 5.0, std::numeric_limits<double>::quiet_NaN()}),
            std::nullopt);
}

TEST(PresentArea, AStripBesideTheHousingIsKeptAsItIs) {
  const Rect left{0.0, 1085.0, 663.25, 32.0};
  EXPECT_EQ(presentArea(left), left);
}

TEST(ToNanojoules, ScalesByTheChannelsUnit) {
  EXPECT_EQ(toNanojoules(7, "mJ"), 7'000'000);
  EXPECT_EQ(toNanojoules(7, "uJ"), 7'000);
  EXPECT_EQ(toNanojoules(7, "nJ"), 7);
  EXPECT_EQ(toNanojoules(7, "J"), 7'000'000'000);
}

TEST(ToNanojoules, AcceptsBothMicroSigns) {
  EXPECT_EQ(toNanojoules(3, "\u00b5J"), 3'000);  // micro sign
  EXPECT_EQ(toNanojoules(3, "\u03bcJ"), 3'000);  // Greek small mu
}

TEST(ToNanojoules, IgnoresBlanksAroundTheLabel) {
  EXPECT_EQ(toNanojoules(2, " mJ  "), 2'000'000);
  EXPECT_EQ(toNanojoules(2, "\tnJ\n"), 2);
}

TEST(ToNanojoules, PicojoulesAreDividedDown) {
  EXPECT_EQ(toNanojoules(12'345, "pJ"), 12);
}

TEST(ToNanojoules, AMissingOrUnknownLabelLeavesTheValueAsNanojoules) {
  EXPECT_EQ(toNanojoules(4'200, ""), 4'200);
  EXPECT_EQ(toNanojoules(4'200, "   "), 4'200);
  EXPECT_EQ(toNanojoules(4'200, "MJ"), 4'200);
  EXPECT_EQ(toNanojoules(4'200, "mj"), 4'200);  // unit letters are case-sensitive
}

TEST(ToNanojoules, NegativeCountersScaleLikeAnyOther) {
  EXPECT_EQ(toNanojoules(-5, "mJ"), -5'000'000);
}

TEST(ToNanojoules, AValueThatCannotBeScaledIsNothing) {
  constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
  EXPECT_EQ(toNanojoules(kMax / 1'000'000 + 1, "mJ"), std::nullopt);
  EXPECT_EQ(toNanojoules(kMax / 1'000'000, "mJ"), kMax / 1'000'000 * 1'000'000);
  EXPECT_EQ(toNanojoules(std::numeric_limits<std::int64_t>::min(), "uJ"), std::nullopt);
  EXPECT_EQ(toNanojoules(kMax, "nJ"), kMax);
}

}  // namespace
}  // namespace brimly
