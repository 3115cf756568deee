#include "settingswindow/AppearanceTabLayout.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

const AppearanceTabLayout::Parts parts{
    .caption = Size{324, 12},
    .accentName = Size{40, 14},
    .previewHeight = 80,
    .swatch = Size{31, 31},
    .swatchCount = 8,
    .sizeCount = 2,
    .trendRowHeight = 22,
};

TEST(AppearanceTabLayout, PreviewUnderItsCaptionAcrossTheWidth) {
  const AppearanceTabGeometry tab = AppearanceTabLayout::layout({0, 0, 324, 329}, parts);
  EXPECT_EQ(tab.previewLabel, (Rect{0, 0, 324, 12}));
  EXPECT_EQ(tab.preview, (Rect{0, 20, 324, 80}));
}

TEST(AppearanceTabLayout, SwatchesInARowUnderTheirCaptionWithTheNameAtTheLinesEnd) {
  const AppearanceTabGeometry tab = AppearanceTabLayout::layout({0, 0, 324, 329}, parts);
  EXPECT_EQ(tab.accentLabel, (Rect{0, 116, 324, 12}));
  EXPECT_EQ(tab.accentName, (Rect{284, 115, 40, 14}));
  ASSERT_EQ(tab.swatches.size(), 8u);
  EXPECT_EQ(tab.swatches[0], (Rect{0, 136, 31, 31}));
  EXPECT_EQ(tab.swatches[1], (Rect{37, 136, 31, 31}));
  EXPECT_LE(tab.swatches.back().maxX(), 324.0);
}

TEST(AppearanceTabLayout, TwoSizesShareTheWidthAndTheTrendRowFollows) {
  const AppearanceTabGeometry tab = AppearanceTabLayout::layout({0, 0, 324, 329}, parts);
  EXPECT_EQ(tab.sizeLabel, (Rect{0, 183, 324, 12}));
  ASSERT_EQ(tab.sizes.size(), 2u);
  EXPECT_EQ(tab.sizes[0], (Rect{0, 203, 160, 26}));
  EXPECT_EQ(tab.sizes[1], (Rect{164, 203, 160, 26}));
  EXPECT_EQ(tab.trendRow, (Rect{0, 245, 324, 22}));
  EXPECT_LE(tab.trendRow.maxY(), 329.0);
}

TEST(AppearanceTabLayout, FollowsTheAreasOrigin) {
  const AppearanceTabGeometry tab = AppearanceTabLayout::layout({18, 121, 324, 329}, parts);
  EXPECT_EQ(tab.previewLabel.x, 18.0);
  EXPECT_EQ(tab.preview.y, 141.0);
  EXPECT_EQ(tab.swatches[0].x, 18.0);
  EXPECT_EQ(tab.sizes[1].maxX(), 342.0);
  EXPECT_EQ(tab.trendRow.y, 366.0);
}

}  // namespace
}  // namespace brimly
