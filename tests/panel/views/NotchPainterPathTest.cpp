#include "panel/views/NotchPainterPath.h"

#include <gtest/gtest.h>

#include "panel/NotchShape.h"

namespace brimly {
namespace {

TEST(NotchPainterPath, CoversExactlyTheRectangle) {
  const QPainterPath path = toPainterPath(NotchShape{7.0, 22.0}.path({0.0, 0.0, 185.0, 32.0}));
  const QRectF bounds = path.boundingRect();
  EXPECT_NEAR(bounds.left(), 0.0, 1e-9);
  EXPECT_NEAR(bounds.top(), 0.0, 1e-9);
  EXPECT_NEAR(bounds.width(), 185.0, 1e-9);
  EXPECT_NEAR(bounds.height(), 32.0, 1e-9);
}

TEST(NotchPainterPath, RoundsTheCornersInwards) {
  const QPainterPath path = toPainterPath(NotchShape{7.0, 22.0}.path({0.0, 0.0, 185.0, 32.0}));
  EXPECT_TRUE(path.contains(QPointF(92.5, 16.0)));
  // Just inside each corner of the bounding box lies outside the rounded outline.
  EXPECT_FALSE(path.contains(QPointF(0.5, 0.5)));
  EXPECT_FALSE(path.contains(QPointF(184.5, 0.5)));
  EXPECT_FALSE(path.contains(QPointF(1.0, 31.0)));
  EXPECT_FALSE(path.contains(QPointF(184.0, 31.0)));
  // The bottom corners are much rounder than the top ones.
  EXPECT_TRUE(path.contains(QPointF(3.0, 3.0)));
  EXPECT_FALSE(path.contains(QPointF(3.0, 29.0)));
  // Points on the straight parts of the edges.
  EXPECT_TRUE(path.contains(QPointF(0.5, 8.5)));
  EXPECT_TRUE(path.contains(QPointF(92.5, 31.5)));
  EXPECT_TRUE(path.contains(QPointF(92.5, 0.5)));
}

TEST(NotchPainterPath, ArcsFollowTheOutlinesCircles) {
  const QPainterPath path = toPainterPath(NotchShape{7.0, 22.0}.path({0.0, 0.0, 600.0, 148.0}));
  // On the bottom-right arc, 45 degrees round from its start.
  const double r = 22.0;
  const QPointF onArc(578.0 + r * std::cos(M_PI / 4.0), 126.0 + r * std::sin(M_PI / 4.0));
  EXPECT_TRUE(path.contains(onArc - QPointF(0.3, 0.3)));
  EXPECT_FALSE(path.contains(onArc + QPointF(0.3, 0.3)));
}

}  // namespace
}  // namespace brimly
