#include "settingswindow/SettingsTheme.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(SettingsTheme, SurfaceIsTheControlCardsColour) {
  EXPECT_EQ(SettingsTheme::surface, Color::sRGB(0.12, 0.125, 0.14));
}

TEST(SettingsTheme, DrawerIsBlackAt35Percent) {
  EXPECT_EQ(SettingsTheme::drawer, Color::sRGB(0.0, 0.0, 0.0, 0.35));
}

TEST(SettingsTheme, HairlineIsWhiteAt8PercentAShadeStrongerThanTheCards) {
  EXPECT_EQ(SettingsTheme::hairline, Color::sRGB(1.0, 1.0, 1.0, 0.08));
  EXPECT_EQ(Theme::cardHairline, Color::sRGB(1.0, 1.0, 1.0, 0.07));
  EXPECT_GT(SettingsTheme::hairline.opacity, Theme::cardHairline.opacity);
}

}  // namespace
}  // namespace brimly
