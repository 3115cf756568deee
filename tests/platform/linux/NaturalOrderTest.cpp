#include "platform/linux/NaturalOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace brimly {
namespace {

TEST(NaturalOrder, NumbersCompareByValue) {
  EXPECT_TRUE(naturalLess("hwmon2", "hwmon10"));
  EXPECT_FALSE(naturalLess("hwmon10", "hwmon2"));
  EXPECT_TRUE(naturalLess("card0", "card0-eDP-1"));
  EXPECT_TRUE(naturalLess("intel-rapl:0", "intel-rapl:0:1"));
  EXPECT_TRUE(naturalLess("intel-rapl:0:1", "intel-rapl:1"));
}

TEST(NaturalOrder, EqualNamesAreNotLess) {
  EXPECT_FALSE(naturalLess("BAT0", "BAT0"));
  EXPECT_FALSE(naturalLess("", ""));
  EXPECT_TRUE(naturalLess("", "a"));
}

TEST(NaturalOrder, DigitRunsLongerThanAnyIntegerStillCompare) {
  EXPECT_TRUE(naturalLess("x99999999999999999999999", "x100000000000000000000000"));
  EXPECT_TRUE(naturalLess("x1", "x01"));  // equal values: fewer leading zeros first
  EXPECT_FALSE(naturalLess("x01", "x1"));
}

TEST(NaturalOrder, SortsAListAsAPersonWould) {
  std::vector<std::string> names{"thermal_zone10", "thermal_zone2", "cooling_device0",
                                 "thermal_zone1"};
  std::sort(names.begin(), names.end(),
            [](const std::string& a, const std::string& b) { return naturalLess(a, b); });
  EXPECT_EQ(names, (std::vector<std::string>{"cooling_device0", "thermal_zone1", "thermal_zone2",
                                             "thermal_zone10"}));
}

}  // namespace
}  // namespace brimly
