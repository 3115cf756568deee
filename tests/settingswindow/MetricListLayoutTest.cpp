#include "settingswindow/MetricListLayout.h"

#include <gtest/gtest.h>
#include "MetricKindNames.h"

namespace brimly {
namespace {

using namespace testing::kinds;

MetricListLayout::Measures measures() {
  return {Size{40, 12}, Size{100, 12}, Size{45, 12}, KindSizes::uniform(Size{30, 16}),
          Size{24, 14}};
}

std::vector<MetricKind> kindsOf(const MetricListGeometry& list, bool shown) {
  std::vector<MetricKind> kinds;
  for (const MetricListRow& row : list.rows) {
    if (row.shown == shown) kinds.push_back(row.kind);
  }
  return kinds;
}

TEST(MetricListLayout, EverythingShownLeavesTheHiddenSectionOut) {
  const MetricListGeometry list = MetricListLayout::layout(MetricKind::allCases(), 324, measures());
  EXPECT_FALSE(list.hiddenHeader.has_value());
  EXPECT_EQ(list.rows.size(), 6u);
  EXPECT_EQ(list.shownCount, 6u);
  EXPECT_EQ(kindsOf(list, false), std::vector<MetricKind>{});
  EXPECT_EQ(list.size, (Size{324, 26 + 6 * 30}));
}

TEST(MetricListLayout, HiddenRowsFollowTheEnumerationOrder) {
  const MetricListGeometry list = MetricListLayout::layout({pwr, cpu}, 324, measures());
  EXPECT_EQ(kindsOf(list, true), (std::vector<MetricKind>{pwr, cpu}));
  EXPECT_EQ(kindsOf(list, false), (std::vector<MetricKind>{gpu, ram, disk, temp}));
}

TEST(MetricListLayout, ATallTitleMakesATallerRow) {
  MetricListLayout::Measures tall = measures();
  tall.titles[ram] = Size{30, 34};
  const MetricListGeometry list = MetricListLayout::layout({cpu, ram}, 324, tall);
  EXPECT_EQ(list.rows[0].frame.height, 30.0);
  EXPECT_EQ(list.rows[1].frame.height, 34.0);
}

TEST(MetricListLayout, ShownCaptionWithTheHintAcrossFromIt) {
  const MetricListGeometry list = MetricListLayout::layout({cpu, ram}, 324, measures());
  EXPECT_EQ(list.shownHeader.frame, (Rect{0, 0, 324, 26}));
  EXPECT_EQ(list.shownHeader.label, (Rect{0, 10, 40, 12}));
  ASSERT_TRUE(list.shownHeader.hint);
  EXPECT_EQ(*list.shownHeader.hint, (Rect{224, 10, 100, 12}));
}

TEST(MetricListLayout, RowsAreAtLeast30HighWithoutGaps) {
  const MetricListGeometry list = MetricListLayout::layout({cpu, ram}, 324, measures());
  ASSERT_EQ(list.rows.size(), 6u);
  EXPECT_EQ(list.rows[0].frame, (Rect{0, 26, 324, 30}));
  EXPECT_EQ(list.rows[1].frame, (Rect{0, 56, 324, 30}));
  ASSERT_TRUE(list.hiddenHeader);
  EXPECT_EQ(list.hiddenHeader->frame, (Rect{0, 86, 324, 26}));
  EXPECT_EQ(list.hiddenHeader->label, (Rect{0, 96, 45, 12}));
  EXPECT_FALSE(list.hiddenHeader->hint.has_value());
  EXPECT_EQ(list.rows[2].frame, (Rect{0, 112, 324, 30}));
  EXPECT_EQ(list.rows[5].frame, (Rect{0, 202, 324, 30}));
  EXPECT_EQ(list.size, (Size{324, 232}));
}

TEST(MetricListLayout, ARowIsAHandleInA16PointFrameTheTitle8BesideAndTheSwitchAtTheEnd) {
  const MetricListGeometry list = MetricListLayout::layout({cpu, ram}, 324, measures());
  const MetricListRow& row = list.rows[0];
  EXPECT_EQ(row.kind, cpu);
  EXPECT_TRUE(row.shown);
  EXPECT_EQ(row.handleFrame, (Rect{0, 26, 16, 30}));
  EXPECT_EQ(row.symbol, (Rect{2.5, 35.5, 11, 11}));
  EXPECT_EQ(row.title, (Rect{24, 33, 30, 16}));
  EXPECT_EQ(row.toggle, (Rect{300, 34, 24, 14}));
  EXPECT_FALSE(list.rows[2].shown);
}

TEST(MetricListLayout, ADropLandsInTheGapNearestThePointer) {
  const MetricListGeometry list = MetricListLayout::layout({cpu, ram}, 324, measures());
  EXPECT_EQ(list.dropDestination(-20), 0u);
  EXPECT_EQ(list.dropDestination(40), 0u);  // above the first row's middle (41)
  EXPECT_EQ(list.dropDestination(42), 1u);
  EXPECT_EQ(list.dropDestination(72), 2u);   // below the second row's middle (71)
  EXPECT_EQ(list.dropDestination(150), 2u);  // over the hidden rows: still after the last shown
}

TEST(MetricListLayout, TheDropLineStraddlesTheGap) {
  const MetricListGeometry list = MetricListLayout::layout({cpu, ram}, 324, measures());
  EXPECT_EQ(list.dropIndicator(0), (Rect{0, 25, 324, 2}));
  EXPECT_EQ(list.dropIndicator(1), (Rect{0, 55, 324, 2}));
  EXPECT_EQ(list.dropIndicator(2), (Rect{0, 85, 324, 2}));
  EXPECT_EQ(list.dropIndicator(3), std::nullopt);
}

TEST(MetricListLayout, SymbolsAndSizes) {
  EXPECT_STREQ(MetricListLayout::shownSymbol, "line.3.horizontal");
  EXPECT_STREQ(MetricListLayout::hiddenSymbol, "eye.slash");
  EXPECT_EQ(MetricListLayout::symbolSize, 11.0);
  EXPECT_EQ(MetricListLayout::titleSize, 12.5);
  EXPECT_EQ(MetricListLayout::minimumRowHeight, 30.0);
}

}  // namespace
}  // namespace brimly
