#include "settingswindow/MetricPreviewLayout.h"

#include <gtest/gtest.h>

#include <limits>
#include "MetricKindNames.h"

namespace brimly {
namespace {

using namespace testing::kinds;

KindSizes titles() {
  KindSizes sizes = KindSizes::uniform(Size{20.0, 10.0});
  sizes[disk] = Size{25.0, 10.0};
  return sizes;
}

TEST(MetricPreviewLayout, NoShownMetricsLeaveOnlyThePadding) {
  const MetricPreviewGeometry preview = MetricPreviewLayout::layout({}, 324.0, 96.0, titles());
  EXPECT_TRUE(preview.cells.empty());
  EXPECT_EQ(preview.size, (Size{324.0, 24.0}));
}

TEST(MetricPreviewLayout, OneMetricIsOneCellPadded12) {
  const MetricPreviewGeometry preview = MetricPreviewLayout::layout({temp}, 324.0, 96.0, titles());
  ASSERT_EQ(preview.cells.size(), 1u);
  EXPECT_EQ(preview.cells[0].kind, temp);
  EXPECT_EQ(preview.cells[0].frame, (Rect{12.0, 12.0, 96.0, 16.5}));
  EXPECT_EQ(preview.size, (Size{324.0, 40.5}));
}

TEST(MetricPreviewLayout, ATitleWiderThanTheBarWidensItsCell) {
  KindSizes sizes = titles();
  sizes[cpu] = Size{120.0, 10.0};
  const MetricPreviewGeometry preview = MetricPreviewLayout::layout({cpu, gpu}, 324.0, 96.0, sizes);
  EXPECT_EQ(preview.cells[0].frame.width, 120.0);
  EXPECT_EQ(preview.cells[0].track.width, 96.0);
  EXPECT_EQ(preview.cells[1].frame.x, 12.0 + 120.0 + 8.0);
}

TEST(MetricPreviewLayout, SixMetricsMakeTwoRowsOfThreeEightApart) {
  const MetricPreviewGeometry preview =
      MetricPreviewLayout::layout(MetricKind::allCases(), 324.0, 96.0, titles());
  ASSERT_EQ(preview.cells.size(), 6u);
  EXPECT_EQ(preview.cells[0].frame, (Rect{12.0, 12.0, 96.0, 16.5}));
  EXPECT_EQ(preview.cells[1].frame, (Rect{116.0, 12.0, 96.0, 16.5}));
  EXPECT_EQ(preview.cells[2].frame, (Rect{220.0, 12.0, 96.0, 16.5}));
  EXPECT_EQ(preview.cells[3].frame, (Rect{12.0, 36.5, 96.0, 16.5}));
  EXPECT_EQ(preview.cells[5].kind, pwr);
  EXPECT_EQ(preview.size, (Size{324.0, 65.0}));
}

TEST(MetricPreviewLayout, ACellIsItsTitleOverAThinTrackFourBelow) {
  const MetricPreviewGeometry preview =
      MetricPreviewLayout::layout({ram, disk}, 324.0, 96.0, titles());
  EXPECT_EQ(preview.cells[1].title, (Rect{116.0, 12.0, 25.0, 10.0}));
  EXPECT_EQ(preview.cells[1].track, (Rect{116.0, 26.0, 96.0, 2.5}));
}

TEST(MetricPreviewLayout, RowsFollowTheDisplayOrderAndTheLastHoldsTheRest) {
  const MetricPreviewGeometry preview =
      MetricPreviewLayout::layout({pwr, temp, disk, gpu}, 324.0, 96.0, titles());
  ASSERT_EQ(preview.cells.size(), 4u);
  EXPECT_EQ(preview.cells[0].kind, pwr);
  EXPECT_EQ(preview.cells[2].kind, disk);
  EXPECT_EQ(preview.cells[3].kind, gpu);
  // The short last row starts at the leading edge, not centred.
  EXPECT_EQ(preview.cells[3].frame.x, 12.0);
  EXPECT_EQ(preview.cells[3].frame.y, 36.5);
}

TEST(MetricPreviewLayout, AnEmptyBarStillShowsATwoPointStub) {
  EXPECT_EQ(MetricPreviewLayout::fillWidth(0.0, 96.0), 2.0);
  EXPECT_EQ(MetricPreviewLayout::fillWidth(0.01, 96.0), 2.0);
  EXPECT_EQ(MetricPreviewLayout::fillWidth(-0.5, 96.0), 2.0);
  EXPECT_EQ(MetricPreviewLayout::fillWidth(std::numeric_limits<double>::quiet_NaN(), 96.0), 2.0);
  EXPECT_EQ(MetricPreviewLayout::fillWidth(std::numeric_limits<double>::infinity(), 96.0), 2.0);
}

TEST(MetricPreviewLayout, AFullBarSpansTheTrack) {
  EXPECT_EQ(MetricPreviewLayout::fillWidth(1.0, 96.0), 96.0);
  EXPECT_EQ(MetricPreviewLayout::fillWidth(0.5, 96.0), 48.0);
  const MetricPreviewGeometry preview = MetricPreviewLayout::layout({gpu}, 324.0, 96.0, titles());
  EXPECT_EQ(MetricPreviewLayout::fillFrame(preview.cells[0], 0.25), (Rect{12.0, 26.0, 24.0, 2.5}));
}

TEST(MetricPreviewLayout, StyleConstants) {
  EXPECT_EQ(MetricPreviewLayout::cellWidth, 96.0);
  EXPECT_EQ(MetricPreviewLayout::cornerRadius, 9.0);
  EXPECT_EQ(MetricPreviewLayout::titleSize, 8.0);
  EXPECT_EQ(MetricPreviewLayout::titleTracking, 0.5);
  EXPECT_EQ(MetricPreviewLayout::trackColor, Color::sRGB(1.0, 1.0, 1.0, 0.08));
}

}  // namespace
}  // namespace brimly
