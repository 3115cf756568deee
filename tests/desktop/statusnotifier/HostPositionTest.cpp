#include "desktop/statusnotifier/HostPosition.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(HostPosition, APositionOnTheScreenIsTakenAsItIs) {
  EXPECT_EQ(screenPositionOfClick(QPoint(1490, 14), "plasmashell"), QPoint(1490, 14));
  EXPECT_EQ(screenPositionOfClick(QPoint(1150, 16), "gnome-shell"), QPoint(1150, 16));
}

TEST(HostPosition, ZeroZeroIsNoPosition) {
  EXPECT_EQ(screenPositionOfClick(QPoint(0, 0), "plasmashell"), std::nullopt);
}

TEST(HostPosition, APositionOnAScreenLeftOfOrAboveTheFirstIsAPositionToo) {
  EXPECT_EQ(screenPositionOfClick(QPoint(-1900, 12), "plasmashell"), QPoint(-1900, 12));
  EXPECT_EQ(screenPositionOfClick(QPoint(0, 12), "plasmashell"), QPoint(0, 12));
}

TEST(HostPosition, WaybarsPlaceInsideItsIconSaysNothingOfWhereTheIconIs) {
  EXPECT_EQ(screenPositionOfClick(QPoint(12, 15), "waybar"), std::nullopt);
}

TEST(HostPosition, AnUnknownCallerIsTakenAtItsWord) {
  EXPECT_EQ(screenPositionOfClick(QPoint(700, 20), ""), QPoint(700, 20));
}

}  // namespace
}  // namespace brimly
