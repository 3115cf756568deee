#include "desktop/tray/ItemPlace.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(ItemPlace, AroundAClickIsATrayIconCentredOnIt) {
  EXPECT_EQ(ItemPlace::around(Point{700, 12}), (Rect{688, 0, 24, 24}));
}

TEST(ItemPlace, TheTopRightCornerIsAsHighAsTheStripATopPanelReserves) {
  const Rect screen{0, 0, 1920, 1080};
  const Rect belowA27PointPanel{0, 27, 1920, 1053};
  EXPECT_EQ(ItemPlace::topRightCorner(screen, belowA27PointPanel), (Rect{1893, 0, 27, 27}));
}

TEST(ItemPlace, WhereNothingIsReservedAtTheTopTheCornerIsAUsualBar) {
  const Rect screen{0, 0, 1920, 1080};
  const Rect aboveABottomPanel{0, 0, 1920, 1040};
  EXPECT_EQ(ItemPlace::topRightCorner(screen, aboveABottomPanel), (Rect{1888, 0, 32, 32}));
}

TEST(ItemPlace, ThePanelsOfTheRightEdgeKeepTheCornerInTheUsableArea) {
  const Rect screen{1920, 0, 1280, 1024};
  const Rect leftOfASidePanel{1920, 0, 1232, 1024};
  EXPECT_EQ(ItemPlace::topRightCorner(screen, leftOfASidePanel), (Rect{3120, 0, 32, 32}));
}

}  // namespace
}  // namespace brimly
