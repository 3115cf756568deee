#include "usage/Color.h"

#include <gtest/gtest.h>

#include "ColorPrinting.h"
#include "usage/Theme.h"

namespace brimly {
namespace {

void expectNear(const Color& actual, const Color& expected, double tolerance) {
  EXPECT_EQ(actual.space, expected.space);
  EXPECT_NEAR(actual.red, expected.red, tolerance);
  EXPECT_NEAR(actual.green, expected.green, tolerance);
  EXPECT_NEAR(actual.blue, expected.blue, tolerance);
  EXPECT_DOUBLE_EQ(actual.opacity, expected.opacity);
}

TEST(Color, SRGBColourIsReturnedUnchanged) {
  const Color colour = Color::sRGB(0.12, 0.125, 0.14, 0.5);
  EXPECT_EQ(colour.inSRGB(), colour);
}

TEST(Color, GreysAndTheWhitePointStayTheSame) {
  for (double level : {0.0, 0.02, 0.2, 0.5, 0.8, 1.0}) {
    expectNear(Color::displayP3(level, level, level).inSRGB(), Color::sRGB(level, level, level),
               1e-9);
  }
}

TEST(Color, SRGBRedWrittenInDisplayP3ComesBackAsPureRed) {
  // sRGB's red primary is (0.9175, 0.2003, 0.1386) in Display P3.
  expectNear(Color::displayP3(0.9175, 0.2003, 0.1386).inSRGB(), Color::sRGB(1.0, 0.0, 0.0), 1e-3);
}

TEST(Color, SaturatedP3ColoursAreClampedIntoSRGB) {
  expectNear(Color::displayP3(1.0, 0.0, 0.0).inSRGB(), Color::sRGB(1.0, 0.0, 0.0), 1e-12);
  expectNear(Color::displayP3(0.0, 1.0, 0.0).inSRGB(), Color::sRGB(0.0, 1.0, 0.0), 1e-12);
  expectNear(Color::displayP3(0.0, 0.0, 1.0).inSRGB(), Color::sRGB(0.0, 0.0, 1.0), 1e-12);
}

TEST(Color, AccentGreenIsMoreSaturatedInP3ThanTheSameNumbersInSRGB) {
  const Color accent = Theme::accent.inSRGB();
  expectNear(accent, Color::sRGB(0.028165, 0.791783, 0.529324), 1e-5);
  EXPECT_LT(accent.red, 0.36);
  EXPECT_GT(accent.green, 0.78);
}

TEST(Color, ConversionKeepsOpacity) {
  EXPECT_DOUBLE_EQ(Color::displayP3(0.3, 0.6, 0.9, 0.42).inSRGB().opacity, 0.42);
}

TEST(Color, WithOpacityMultiplies) {
  const Color dimmed = Color::sRGB(1, 1, 1, 0.6).withOpacity(0.55);
  EXPECT_DOUBLE_EQ(dimmed.opacity, 0.6 * 0.55);
  EXPECT_EQ(dimmed.space, ColorSpace::sRGB);
}

TEST(Theme, DarkSchemeColours) {
  EXPECT_EQ(Theme::primaryForeground, Color::sRGB(1, 1, 1, 0.85));
  EXPECT_EQ(Theme::secondaryForeground, Color::sRGB(235 / 255.0, 235 / 255.0, 245 / 255.0, 0.6));
  EXPECT_EQ(Theme::surface, Color::sRGB(0.12, 0.125, 0.14));
  EXPECT_EQ(Theme::accent, Color::displayP3(0.36, 0.78, 0.55));
  EXPECT_EQ(Theme::panelBackground, Color::sRGB(0, 0, 0));
  EXPECT_DOUBLE_EQ(Theme::barTrack.opacity, 0.85 * 0.07);
}

TEST(Color, RelativeLuminanceRunsFromBlackToWhite) {
  EXPECT_DOUBLE_EQ(Color::sRGB(0, 0, 0).relativeLuminance(), 0.0);
  EXPECT_DOUBLE_EQ(Color::sRGB(1, 1, 1).relativeLuminance(), 1.0);
  // Green weighs most: 0.7152 of the whole, the coefficient WCAG takes from sRGB.
  EXPECT_NEAR(Color::sRGB(0, 1, 0).relativeLuminance(), 0.7152, 1e-12);
  // Half-level grey, linearised by the sRGB curve.
  EXPECT_NEAR(Color::sRGB(0.5, 0.5, 0.5).relativeLuminance(), 0.21404, 1e-5);
}

TEST(Color, ContrastRatioIsTheOneOfWcag) {
  const Color black = Color::sRGB(0, 0, 0);
  const Color white = Color::sRGB(1, 1, 1);
  EXPECT_DOUBLE_EQ(contrastRatio(black, white), 21.0);
  EXPECT_DOUBLE_EQ(contrastRatio(white, black), 21.0);
  EXPECT_DOUBLE_EQ(contrastRatio(Theme::surface, Theme::surface), 1.0);
  // #777777 on white, the grey that just misses 4.5 : 1.
  EXPECT_NEAR(contrastRatio(Color::sRGB(0x77 / 255.0, 0x77 / 255.0, 0x77 / 255.0), white), 4.48,
              0.005);
}

TEST(Color, OverMixesByOpacityAndGivesAnOpaqueColour) {
  const Color mixed = Color::sRGB(1, 1, 1, 0.25).over(Color::sRGB(0.2, 0.4, 0.6));
  expectNear(mixed, Color::sRGB(0.4, 0.55, 0.7), 1e-12);
  expectNear(Theme::accent.over(Theme::surface), Theme::accent.inSRGB(), 1e-12);
}

}  // namespace
}  // namespace brimly
