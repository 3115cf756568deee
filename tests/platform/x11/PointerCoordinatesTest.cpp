#include "platform/x11/PointerCoordinates.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(PointerCoordinates, TopRowOfTheDesktopIsItsFullHeight) {
  EXPECT_EQ(bottomLeftPointerPosition(756, 0, 982, 1.0), (Point{756, 982}));
}

TEST(PointerCoordinates, BottomRowIsOneAboveZero) {
  EXPECT_EQ(bottomLeftPointerPosition(0, 981, 982, 1.0), (Point{0, 1}));
}

TEST(PointerCoordinatesEdge, ScaledDesktopDividesBothAxes) {
  EXPECT_EQ(bottomLeftPointerPosition(200, 100, 2000, 2.0), (Point{100, 950}));
}

TEST(PointerCoordinatesEdge, NonPositiveScaleIsTreatedAsOne) {
  EXPECT_EQ(bottomLeftPointerPosition(10, 20, 100, 0.0), (Point{10, 80}));
  EXPECT_EQ(bottomLeftPointerPosition(10, 20, 100, -3.0), (Point{10, 80}));
}

}  // namespace
}  // namespace brimly
