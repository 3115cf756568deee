#include "usage/AccentColors.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "usage/Theme.h"

namespace brimly {
namespace {

TEST(AccentColors, GreenIsTheAccentBrimlyHasAlwaysHad) {
  EXPECT_EQ(AccentColors::of(AccentChoice::green), Theme::accent);
  EXPECT_EQ(AccentColors::of(AccentChoice::green), Color::displayP3(0.36, 0.78, 0.55));
}

TEST(AccentColors, EverySwatchIsItsOwnOpaqueColour) {
  std::set<std::tuple<double, double, double>> seen;
  for (const AccentChoice choice : accentChoices) {
    if (choice == AccentChoice::system) continue;
    const Color colour = AccentColors::of(choice);
    EXPECT_EQ(colour.opacity, 1.0) << displayName(choice);
    seen.emplace(colour.red, colour.green, colour.blue);
  }
  EXPECT_EQ(seen.size(), accentChoices.size() - 1);
}

TEST(AccentColors, EverySwatchStandsOutFromTheSurfaceAsAControlMust) {
  for (const AccentChoice choice : accentChoices) {
    const Color colour = AccentColors::of(choice).over(Theme::surface);
    EXPECT_GE(contrastRatio(colour, Theme::surface), 3.0) << displayName(choice);
  }
}

TEST(AccentColors, SystemTakesTheDesktopsAccent) {
  const Color desktop = Color::sRGB(0.8, 0.2, 0.1);
  EXPECT_EQ(AccentColors::of(AccentChoice::system, desktop), desktop);
}

TEST(AccentColors, SystemFallsBackToGreenWithoutADesktopAccent) {
  EXPECT_EQ(AccentColors::of(AccentChoice::system), Theme::accent);
  EXPECT_EQ(AccentColors::of(AccentChoice::system, std::nullopt), Theme::accent);
}

TEST(AccentColors, AFixedSwatchIgnoresTheDesktop) {
  EXPECT_EQ(AccentColors::of(AccentChoice::blue, Color::sRGB(1.0, 0.0, 0.0)),
            AccentColors::of(AccentChoice::blue));
}

}  // namespace
}  // namespace brimly
