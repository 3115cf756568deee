#include "settingswindow/AppearanceTabLayout.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(AppearanceTabLayout, AStackCentredAcrossTheWidth40BelowTheTopTenApart) {
  const AppearanceTabGeometry tab =
      AppearanceTabLayout::layout({0, 0, 324, 329}, Size{200, 16}, Size{150, 13});
  EXPECT_EQ(tab.symbol, (Rect{147, 40, 30, 30}));
  EXPECT_EQ(tab.title, (Rect{62, 80, 200, 16}));
  EXPECT_EQ(tab.subtitle, (Rect{87, 106, 150, 13}));
}

TEST(AppearanceTabLayout, FollowsTheAreasOrigin) {
  const AppearanceTabGeometry tab =
      AppearanceTabLayout::layout({18, 121, 324, 329}, Size{200, 16}, Size{150, 13});
  EXPECT_EQ(tab.symbol, (Rect{165, 161, 30, 30}));
  EXPECT_EQ(tab.subtitle.midX(), 180.0);
}

TEST(AppearanceTabLayout, PaletteIsThirtyPointsInTheAccentAt70Percent) {
  EXPECT_EQ(AppearanceTabLayout::symbolSize, 30.0);
  EXPECT_EQ(AppearanceTabLayout::symbolOpacity, 0.7);
  EXPECT_EQ(AppearanceTabLayout::titleSize, 13.0);
  EXPECT_EQ(AppearanceTabLayout::subtitleSize, 11.0);
}

}  // namespace
}  // namespace brimly
