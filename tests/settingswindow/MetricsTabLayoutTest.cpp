#include "settingswindow/MetricsTabLayout.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(MetricsTabLayout, APreviewTallerThanTheTabLeavesTheListNoHeight) {
  const MetricsTabGeometry tab = MetricsTabLayout::layout({0, 0, 324, 100}, Size{70, 12}, 200);
  EXPECT_EQ(tab.list.height, 0.0);
}

TEST(MetricsTabLayout, CaptionThenPreviewAcrossTheWidthThenTheListToTheBottom) {
  const MetricsTabGeometry tab = MetricsTabLayout::layout({18, 121, 324, 329}, Size{70, 12}, 65);
  EXPECT_EQ(tab.previewLabel, (Rect{18, 121, 70, 12}));
  EXPECT_EQ(tab.preview, (Rect{18, 141, 324, 65}));
  EXPECT_EQ(tab.list, (Rect{18, 212, 324, 238}));
}

}  // namespace
}  // namespace brimly
