#include "settingswindow/SettingsViewLayout.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

SettingsViewLayout::TextSizes sampleTexts() {
  return {
      Size{40.0, 17.0}, Size{30.0, 13.0}, {Size{45.0, 15.0}, Size{44.0, 15.0}, Size{66.0, 15.0}}};
}

TEST(SettingsViewLayout, ContentIsFixedAt360By468PaddedBy18) {
  EXPECT_EQ(SettingsViewLayout::width, 360.0);
  EXPECT_EQ(SettingsViewLayout::height, 468.0);
  const SettingsViewGeometry geometry = SettingsViewLayout::layout(sampleTexts());
  EXPECT_EQ(geometry.header.x, 18.0);
  EXPECT_EQ(geometry.header.y, 18.0);
  EXPECT_EQ(geometry.header.width, 324.0);
  EXPECT_EQ(geometry.content.x, 18.0);
  EXPECT_EQ(geometry.content.width, 324.0);
  EXPECT_EQ(geometry.content.maxY(), 468.0 - 18.0);
}

TEST(SettingsViewLayout, HeaderCentresTheGaugeBesideTheNameOverTheVersion) {
  const SettingsViewGeometry geometry = SettingsViewLayout::layout(sampleTexts());
  // The column is 17 + 1 + 13 = 31 high, taller than the 16-point gauge.
  EXPECT_EQ(geometry.header, (Rect{18.0, 18.0, 324.0, 31.0}));
  EXPECT_EQ(geometry.headerSymbol, (Rect{18.0, 25.5, 16.0, 16.0}));
  EXPECT_EQ(geometry.name, (Rect{44.0, 18.0, 40.0, 17.0}));
  EXPECT_EQ(geometry.version, (Rect{44.0, 36.0, 30.0, 13.0}));
}

TEST(SettingsViewLayout, AHeaderOfSmallTextsIsAsTallAsTheGauge) {
  const SettingsViewGeometry geometry =
      SettingsViewLayout::layout({Size{30.0, 6.0}, Size{20.0, 5.0}, {}});
  EXPECT_EQ(geometry.header.height, 16.0);
  EXPECT_EQ(geometry.headerSymbol.y, 18.0);
  EXPECT_EQ(geometry.name.y, 18.0 + (16.0 - 12.0) / 2.0);
}

TEST(SettingsViewLayout, TabBarSits14BelowTheHeaderPadded6AboveAndBelow) {
  const SettingsViewGeometry geometry = SettingsViewLayout::layout(sampleTexts());
  EXPECT_EQ(geometry.tabBar, (Rect{18.0, 63.0, 324.0, 27.0}));
}

TEST(SettingsViewLayout, TabsShareTheBarEquallyFourApart) {
  const SettingsViewGeometry geometry = SettingsViewLayout::layout(sampleTexts());
  ASSERT_EQ(geometry.tabs.size(), 3u);
  const double buttonWidth = (324.0 - 2 * 4.0) / 3.0;
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(geometry.tabs[i].tab, SettingsTab::allCases()[i]);
    EXPECT_DOUBLE_EQ(geometry.tabs[i].frame.width, buttonWidth);
    EXPECT_EQ(geometry.tabs[i].frame.y, 63.0);
    EXPECT_EQ(geometry.tabs[i].frame.height, 27.0);
  }
  EXPECT_EQ(geometry.tabs[0].frame.x, 18.0);
  EXPECT_DOUBLE_EQ(geometry.tabs[1].frame.x, geometry.tabs[0].frame.maxX() + 4.0);
  EXPECT_DOUBLE_EQ(geometry.tabs[2].frame.x, geometry.tabs[1].frame.maxX() + 4.0);
  EXPECT_DOUBLE_EQ(geometry.tabs[2].frame.maxX(), 342.0);
}

TEST(SettingsViewLayout, TabLabelIsTheSymbolAndTitleFiveApartCentredInTheButton) {
  const SettingsViewGeometry geometry = SettingsViewLayout::layout(sampleTexts());
  const TabButtonGeometry& general = geometry.tabs[0];
  // 11 + 5 + 45 = 61 wide, centred in the button.
  const double labelX = general.frame.midX() - 61.0 / 2.0;
  EXPECT_DOUBLE_EQ(general.symbol.x, labelX);
  EXPECT_EQ(general.symbol.y, 63.0 + 13.5 - 5.5);
  EXPECT_EQ(general.symbol.width, 11.0);
  EXPECT_EQ(general.symbol.height, 11.0);
  EXPECT_DOUBLE_EQ(general.title.x, labelX + 16.0);
  EXPECT_EQ(general.title.y, 69.0);
  EXPECT_EQ(general.title.width, 45.0);
  EXPECT_DOUBLE_EQ(general.title.maxX() - general.frame.midX(),
                   general.frame.midX() - general.symbol.x);
}

TEST(SettingsViewLayout, RuleLies14BelowTheTabBarAndContent16BelowTheRule) {
  const SettingsViewGeometry geometry = SettingsViewLayout::layout(sampleTexts());
  EXPECT_EQ(geometry.rule, (Rect{18.0, 104.0, 324.0, 1.0}));
  EXPECT_EQ(geometry.content, (Rect{18.0, 121.0, 324.0, 329.0}));
}

TEST(SettingsViewLayout, TabButtonsStyleConstants) {
  EXPECT_EQ(SettingsViewLayout::tabCornerRadius, 8.0);
  EXPECT_EQ(SettingsViewLayout::selectedTabOpacity, 0.16);
  EXPECT_EQ(SettingsViewLayout::unselectedTabOpacity, 0.04);
  EXPECT_EQ(SettingsViewLayout::tabTitleSize, 12.0);
  EXPECT_EQ(SettingsViewLayout::nameSize, 14.5);
  EXPECT_EQ(SettingsViewLayout::versionSize, 10.5);
}

}  // namespace
}  // namespace brimly
