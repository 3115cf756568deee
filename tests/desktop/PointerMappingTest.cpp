#include "desktop/PointerMapping.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(PointerMapping, UnscaledScreenLeavesThePointAlone) {
  EXPECT_EQ(logicalFromNative(QPointF(756, 10), {{QRect(0, 0, 1512, 982), 1.0}}), QPointF(756, 10));
}

TEST(PointerMapping, DoubledScreenHalvesDistancesFromItsCorner) {
  // A 3024 x 1964 pixel screen that Qt shows as 1512 x 982.
  EXPECT_EQ(logicalFromNative(QPointF(1512, 20), {{QRect(0, 0, 1512, 982), 2.0}}),
            QPointF(756, 10));
}

TEST(PointerMappingEdge, SecondScreenKeepsItsCornerWhereItIs) {
  const QList<ScreenScale> screens = {{QRect(0, 0, 1920, 1080), 1.0},
                                      {QRect(1920, 0, 1280, 800), 2.0}};
  EXPECT_EQ(logicalFromNative(QPointF(1920 + 200, 100), screens), QPointF(1920 + 100, 50));
  EXPECT_EQ(logicalFromNative(QPointF(100, 100), screens), QPointF(100, 100));
}

TEST(PointerMappingEdge, PointOnNoScreenIsLeftAsItIs) {
  EXPECT_EQ(logicalFromNative(QPointF(5000, 5000), {{QRect(0, 0, 100, 100), 2.0}}),
            QPointF(5000, 5000));
  EXPECT_EQ(logicalFromNative(QPointF(3, 4), {}), QPointF(3, 4));
}

TEST(PointerMappingEdge, NonPositiveRatioCountsAsOne) {
  EXPECT_EQ(logicalFromNative(QPointF(30, 40), {{QRect(0, 0, 100, 100), 0.0}}), QPointF(30, 40));
}

}  // namespace
}  // namespace brimly
