#include "panel/RootViewMetrics.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(RootViewMetrics, ForANotchTheOpenCardIs600ByNotchHeightPlus116) {
  const auto metrics = RootViewMetrics::forNotch({185.0, 32.0}, true);
  EXPECT_EQ(metrics, (RootViewMetrics{32.0, 185.0, 600.0, 148.0, true}));
  EXPECT_FALSE(RootViewMetrics::forNotch({185.0, 32.0}, false).hasNotch);
}

TEST(RootViewMetrics, ClosedCardCoversTheNotchCentredOnTheTopEdge) {
  const auto metrics = RootViewMetrics::forNotch({185.0, 32.0}, true);
  EXPECT_EQ(metrics.cardFrame(600.0, 0.0), (Rect{207.5, 0.0, 185.0, 32.0}));
}

TEST(RootViewMetrics, OpenCardFillsThePanel) {
  const auto metrics = RootViewMetrics::forNotch({185.0, 32.0}, true);
  EXPECT_EQ(metrics.cardFrame(600.0, 1.0), (Rect{0.0, 0.0, 600.0, 148.0}));
}

TEST(RootViewMetrics, HalfWayTheCardIsHalfWayInBothDirections) {
  const auto metrics = RootViewMetrics::forNotch({200.0, 32.0}, true);
  EXPECT_EQ(metrics.cardFrame(600.0, 0.5), (Rect{100.0, 0.0, 400.0, 90.0}));
}

TEST(RootViewMetrics, ContentKeepsItsFullSizeAndTheGridStartsBelowTheNotchBand) {
  const auto metrics = RootViewMetrics::forNotch({185.0, 38.0}, true);
  EXPECT_EQ(metrics.contentFrame(600.0), (Rect{0.0, 0.0, 600.0, 154.0}));
  EXPECT_EQ(metrics.contentFrame(700.0), (Rect{50.0, 0.0, 600.0, 154.0}));
  EXPECT_EQ(metrics.gridTop(), 46.0);
}

TEST(RootViewMetrics, OverANotchTheCardIsAlwaysOpaque) {
  const auto metrics = RootViewMetrics::forNotch({185.0, 32.0}, true);
  for (double openness : {0.0, 0.05, 0.5, 1.0})
    EXPECT_EQ(metrics.cardOpacity(openness), 1.0) << openness;
}

TEST(RootViewMetrics, WithoutANotchTheClosedCardIsNotDrawn) {
  const auto metrics = RootViewMetrics::forNotch({200.0, 32.0}, false);
  EXPECT_EQ(metrics.cardOpacity(0.0), 0.0);
  EXPECT_EQ(metrics.cardOpacity(-0.01), 0.0);  // a spring settling a hair past closed
}

TEST(RootViewMetrics, WithoutANotchTheCardEasesInOverTheFirstPartOfTheOpening) {
  const auto metrics = RootViewMetrics::forNotch({200.0, 32.0}, false);
  const double span = RootViewMetrics::fadeInOpenness;
  EXPECT_LT(metrics.cardOpacity(0.05 * span), 0.01);  // a gentle start
  EXPECT_NEAR(metrics.cardOpacity(0.5 * span), 0.5, 1e-9);
  EXPECT_GT(metrics.cardOpacity(0.95 * span), 0.99);  // a gentle arrival
  EXPECT_EQ(metrics.cardOpacity(span), 1.0);
  EXPECT_EQ(metrics.cardOpacity(0.7), 1.0);
  EXPECT_EQ(metrics.cardOpacity(1.0), 1.0);
  double previous = 0.0;
  for (int step = 1; step <= 40; ++step) {
    const double opacity = metrics.cardOpacity(span * step / 40.0);
    EXPECT_GT(opacity, previous) << step;
    previous = opacity;
  }
}

// --- A larger panel ---

TEST(LargerRootViewMetrics, TheOpenCardIsAQuarterLargerBelowTheNotch) {
  const auto metrics = RootViewMetrics::forNotch({185.0, 32.0}, true, 1.25);
  EXPECT_EQ(metrics, (RootViewMetrics{32.0, 185.0, 750.0, 32.0 + 145.0, true, 1.25}));
  EXPECT_EQ(metrics.cardFrame(750.0, 1.0), (Rect{0.0, 0.0, 750.0, 177.0}));
  EXPECT_EQ(metrics.contentFrame(750.0), (Rect{0.0, 0.0, 750.0, 177.0}));
  EXPECT_EQ(metrics.gridTop(), 32.0 + 10.0);
}

TEST(LargerRootViewMetrics, TheClosedCardIsStillTheNotchCentredOnIt) {
  const auto usual = RootViewMetrics::forNotch({185.0, 32.0}, true);
  const auto larger = RootViewMetrics::forNotch({185.0, 32.0}, true, 1.25);
  EXPECT_EQ(larger.cardFrame(750.0, 0.0), (Rect{282.5, 0.0, 185.0, 32.0}));
  for (double openness : {0.0, 0.3, 0.5, 1.0, 1.02}) {
    EXPECT_EQ(larger.cardFrame(750.0, openness).midX(), 375.0) << openness;
    EXPECT_EQ(usual.cardFrame(600.0, openness).midX(), 300.0) << openness;
  }
}

TEST(LargerRootViewMetrics, TheOutlinesCornersGrowWithTheCard) {
  const NotchShape usual{7.0, 22.0};
  const auto larger = RootViewMetrics::forNotch({185.0, 32.0}, true, 1.25);
  EXPECT_EQ(larger.cardOutline(usual, 0.0), usual);  // over the notch, the notch's own corners
  EXPECT_EQ(larger.cardOutline(usual, 1.0), (NotchShape{8.75, 27.5}));
  EXPECT_EQ(larger.cardOutline(usual, 0.5), (NotchShape{7.875, 24.75}));
  const auto regular = RootViewMetrics::forNotch({185.0, 32.0}, true);
  for (double openness : {0.0, 0.5, 1.0})
    EXPECT_EQ(regular.cardOutline(usual, openness), usual) << openness;
}

}  // namespace
}  // namespace brimly
