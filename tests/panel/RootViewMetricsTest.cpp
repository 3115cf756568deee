#include "panel/RootViewMetrics.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(RootViewMetrics, ForANotchTheOpenCardIs600ByNotchHeightPlus116) {
  const auto metrics = RootViewMetrics::forNotch({185.0, 32.0});
  EXPECT_EQ(metrics, (RootViewMetrics{32.0, 185.0, 600.0, 148.0}));
}

TEST(RootViewMetrics, ClosedCardCoversTheNotchCentredOnTheTopEdge) {
  const auto metrics = RootViewMetrics::forNotch({185.0, 32.0});
  EXPECT_EQ(metrics.cardFrame(600.0, 0.0), (Rect{207.5, 0.0, 185.0, 32.0}));
}

TEST(RootViewMetrics, OpenCardFillsThePanel) {
  const auto metrics = RootViewMetrics::forNotch({185.0, 32.0});
  EXPECT_EQ(metrics.cardFrame(600.0, 1.0), (Rect{0.0, 0.0, 600.0, 148.0}));
}

TEST(RootViewMetrics, HalfWayTheCardIsHalfWayInBothDirections) {
  const auto metrics = RootViewMetrics::forNotch({200.0, 32.0});
  EXPECT_EQ(metrics.cardFrame(600.0, 0.5), (Rect{100.0, 0.0, 400.0, 90.0}));
}

TEST(RootViewMetrics, ContentKeepsItsFullSizeAndTheGridStartsBelowTheNotchBand) {
  const auto metrics = RootViewMetrics::forNotch({185.0, 38.0});
  EXPECT_EQ(metrics.contentFrame(600.0), (Rect{0.0, 0.0, 600.0, 154.0}));
  EXPECT_EQ(metrics.contentFrame(700.0), (Rect{50.0, 0.0, 600.0, 154.0}));
  EXPECT_EQ(metrics.gridTop(), 46.0);
}

}  // namespace
}  // namespace brimly
