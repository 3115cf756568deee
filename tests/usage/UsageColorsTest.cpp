#include "usage/UsageColors.h"

#include <gtest/gtest.h>

#include <cmath>

#include "ColorPrinting.h"
#include "usage/Theme.h"

namespace brimly {
namespace {

const ColorPair green{Color::displayP3(0.36, 0.78, 0.55), Color::displayP3(0.30, 0.72, 0.62)};
const ColorPair amber{Color::displayP3(0.98, 0.74, 0.27), Color::displayP3(0.95, 0.55, 0.20)};
const ColorPair red{Color::displayP3(0.96, 0.38, 0.35), Color::displayP3(0.88, 0.22, 0.42)};
const ColorPair cyanToBlue{Color::displayP3(0.36, 0.78, 0.85), Color::displayP3(0.32, 0.62, 0.92)};

TEST(UsageColors, ExactlyFiftyFiveHundredthsIsAmber) {
  EXPECT_EQ(usageColors(0.55), amber);
}

TEST(UsageColors, ExactlyEightTenthsIsRed) {
  EXPECT_EQ(usageColors(0.8), red);
}

TEST(UsageColors, BandsBelowTheThresholds) {
  EXPECT_EQ(usageColors(0.0), green);
  EXPECT_EQ(usageColors(0.5499), green);
  EXPECT_EQ(usageColors(-1.0), green);
  EXPECT_EQ(usageColors(0.7999), amber);
  EXPECT_EQ(usageColors(1.5), red);
}

TEST(UsageColors, NaNIsRed) {
  EXPECT_EQ(usageColors(std::nan("")), red);
}

TEST(HeatColors, ExactlyFortyThreeHundredthsIsAmber) {
  EXPECT_EQ(colors(0.43, BarPalette::heat()), amber);
}

TEST(HeatColors, ExactlySeventyTwoHundredthsIsRed) {
  EXPECT_EQ(colors(0.72, BarPalette::heat()), red);
}

TEST(HeatColors, CoarserStepsThanTheLoadColours) {
  // 0.6 is amber as a load but still green as heat.
  EXPECT_EQ(colors(0.6, BarPalette::usage()), amber);
  EXPECT_EQ(colors(0.42, BarPalette::heat()), green);
  EXPECT_EQ(colors(0.71, BarPalette::heat()), amber);
  EXPECT_EQ(colors(1.0, BarPalette::heat()), red);
  EXPECT_EQ(colors(std::nan(""), BarPalette::heat()), red);
}

TEST(UsagePalette, FollowsTheLoadColours) {
  for (double value : {0.1, 0.6, 0.9}) {
    EXPECT_EQ(colors(value, BarPalette::usage()), usageColors(value));
  }
}

TEST(PowerColors, ChargingIsCyanToBlueWhateverTheValue) {
  for (double value : {0.0, 0.5, 0.95, -1.0}) {
    EXPECT_EQ(colors(value, BarPalette::power(PowerState::charging(20))), cyanToBlue);
  }
}

TEST(PowerColors, MainsAndUnknownAreDimmedGrey) {
  const Color grey = Theme::secondaryForeground.withOpacity(0.55);
  for (double value : {0.0, 0.5, 0.95}) {
    EXPECT_EQ(colors(value, BarPalette::power(PowerState::acIdle())), (ColorPair{grey, grey}));
    EXPECT_EQ(colors(value, BarPalette::power(PowerState::unknown())), (ColorPair{grey, grey}));
  }
}

TEST(AbsentColors, AReadingThatCouldNotBeTakenIsTheSameDimmedGreyWhateverTheValue) {
  const Color grey = Theme::secondaryForeground.withOpacity(0.55);
  EXPECT_EQ(dimmedBar, grey);
  for (double value : {0.0, 0.5, 0.95, std::nan("")}) {
    EXPECT_EQ(colors(value, BarPalette::absent()), (ColorPair{grey, grey}));
  }
  EXPECT_NE(BarPalette::absent(), BarPalette::usage());
  EXPECT_NE(BarPalette::absent(), BarPalette::power(PowerState::unknown()));
}

TEST(PowerColors, BatteryIsLoadColoured) {
  const BarPalette battery = BarPalette::power(PowerState::discharging(12));
  EXPECT_EQ(colors(0.2, battery), green);
  EXPECT_EQ(colors(0.6, battery), amber);
  EXPECT_EQ(colors(0.9, battery), red);
}

TEST(BarPalette, EqualityComparesTheCarriedState) {
  EXPECT_EQ(BarPalette::power(PowerState::charging(3)), BarPalette::power(PowerState::charging(3)));
  EXPECT_NE(BarPalette::power(PowerState::charging(3)), BarPalette::power(PowerState::charging(4)));
  EXPECT_NE(BarPalette::power(PowerState::unknown()), BarPalette::usage());
  EXPECT_NE(BarPalette::heat(), BarPalette::usage());
}

}  // namespace
}  // namespace brimly
