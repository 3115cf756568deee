#include "panel/NotchShape.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace brimly {
namespace {

constexpr double pi = std::numbers::pi;
using Kind = PathElement::Kind;

void expectNear(Point actual, Point expected) {
  EXPECT_NEAR(actual.x, expected.x, 1e-9);
  EXPECT_NEAR(actual.y, expected.y, 1e-9);
}

TEST(NotchShape, PlainlyContainsWhatNoCornerReaches) {
  const NotchShape shape{7.0, 22.0};
  const Rect card{100.0, 0.0, 600.0, 148.0};
  EXPECT_TRUE(shape.plainlyContains(card, {122.0, 0.0, 556.0, 148.0}));   // between the corners
  EXPECT_TRUE(shape.plainlyContains(card, {100.0, 7.0, 600.0, 119.0}));   // between their rows
  EXPECT_TRUE(shape.plainlyContains(card, {126.0, 40.0, 174.0, 20.0}));   // a strip of the grid
  EXPECT_FALSE(shape.plainlyContains(card, {121.0, 130.0, 10.0, 10.0}));  // in a bottom corner
  EXPECT_FALSE(shape.plainlyContains(card, {100.0, 0.0, 10.0, 5.0}));     // in a top corner
  EXPECT_FALSE(shape.plainlyContains(card, {90.0, 40.0, 20.0, 20.0}));    // across the edge
}

TEST(NotchShape, IgnoresTheRectanglesOrigin) {
  const NotchShape shape{7.0, 22.0};
  EXPECT_EQ(shape.path({10.0, 10.0, 100.0, 40.0}), shape.path({0.0, 0.0, 100.0, 40.0}));
}

TEST(NotchShape, ThirtyTwoPointOutlineHasThreePointStraightSides) {
  const auto path = NotchShape{7.0, 22.0}.path({0.0, 0.0, 185.0, 32.0});
  ASSERT_EQ(path.size(), 9u);
  // The right side runs from the end of the top-right arc down to the start of the bottom-right.
  const Point topRightEnd = path[3].arcEnd();
  ASSERT_EQ(path[4].kind, Kind::line);
  EXPECT_NEAR(path[4].point.y - topRightEnd.y, 3.0, 1e-9);
  EXPECT_NEAR(path[4].point.x, topRightEnd.x, 1e-9);
  expectNear(path[5].arcStart(), path[4].point);
  // The left side closes from the end of the bottom-left arc back up to the start point.
  EXPECT_NEAR(path[7].arcEnd().y - path[0].point.y, 3.0, 1e-9);
}

TEST(NotchShape, NeverReducesTheRadiiToFit) {
  // 40 wide is less than two bottom radii: the bottom arcs keep radius 22 and cross.
  const auto path = NotchShape{7.0, 22.0}.path({0.0, 0.0, 40.0, 10.0});
  EXPECT_EQ(path[1].radius, 7.0);
  EXPECT_EQ(path[5].radius, 22.0);
  EXPECT_EQ(path[7].radius, 22.0);
  expectNear(path[5].centre, {18.0, -12.0});
  expectNear(path[7].centre, {22.0, -12.0});
  EXPECT_LT(path[5].centre.x, path[7].centre.x);  // the bottom-right centre lies left of the other
  EXPECT_EQ(path[6].point, (Point{22.0, 10.0}));
}

TEST(NotchShape, FollowsTheOutlineStepByStep) {
  const double w = 600.0;
  const double h = 148.0;
  const auto path = NotchShape{7.0, 22.0}.path({0.0, 0.0, w, h});
  const std::vector<PathElement> expected = {
      PathElement::moveTo({0.0, 7.0}),
      PathElement::arc({7.0, 7.0}, 7.0, pi, 3.0 * pi / 2.0),
      PathElement::lineTo({w - 7.0, 0.0}),
      PathElement::arc({w - 7.0, 7.0}, 7.0, 3.0 * pi / 2.0, 0.0),
      PathElement::lineTo({w, h - 22.0}),
      PathElement::arc({w - 22.0, h - 22.0}, 22.0, 0.0, pi / 2.0),
      PathElement::lineTo({22.0, h}),
      PathElement::arc({22.0, h - 22.0}, 22.0, pi / 2.0, pi),
      PathElement::close(),
  };
  EXPECT_EQ(path, expected);
}

TEST(NotchShape, EachArcTurnsAQuarterAndJoinsItsNeighbours) {
  const auto path = NotchShape{7.0, 22.0}.path({0.0, 0.0, 185.0, 32.0});
  expectNear(path[1].arcStart(), path[0].point);
  expectNear(path[1].arcEnd(), {7.0, 0.0});
  expectNear(path[3].arcStart(), path[2].point);
  expectNear(path[3].arcEnd(), {185.0, 7.0});
  expectNear(path[5].arcEnd(), {163.0, 32.0});
  expectNear(path[7].arcStart(), path[6].point);
  expectNear(path[7].arcEnd(), {0.0, 10.0});
  for (int i : {1, 3, 5, 7}) {
    EXPECT_NEAR(path[i].sweep(), pi / 2.0, 1e-12) << "arc " << i;
  }
  EXPECT_EQ(path.back().kind, Kind::close);
}

TEST(NotchShape, AnimatableDataIsTheRadiusPair) {
  NotchShape shape{7.0, 22.0};
  EXPECT_EQ(shape.animatableData(), std::make_pair(7.0, 22.0));
  shape.setAnimatableData({3.0, 9.5});
  EXPECT_EQ(shape, (NotchShape{3.0, 9.5}));
}

TEST(PathElement, SweepWrapsForwardsOnce) {
  EXPECT_NEAR(PathElement::arc({}, 1.0, 3.0 * pi / 2.0, 0.0).sweep(), pi / 2.0, 1e-12);
  EXPECT_NEAR(PathElement::arc({}, 1.0, 0.0, pi / 2.0).sweep(), pi / 2.0, 1e-12);
  EXPECT_NEAR(PathElement::arc({}, 1.0, pi, 0.5).sweep(), pi + 0.5, 1e-12);
}

}  // namespace
}  // namespace brimly
