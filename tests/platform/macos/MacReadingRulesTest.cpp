#include "platform/macos/MacReadingRules.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace brimly {
namespace {

TEST(PresentArea, AnEmptyRectangleIsNoArea) {
  EXPECT_EQ(presentArea(Rect{}), std::nullopt);
  EXPECT_EQ(presentArea(Rect{0.0, 1085.0, 0.0, 32.0}), std::nullopt);
  EXPECT_EQ(presentArea(Rect{0.0, 1085.0, 656.0, 0.0}), std::nullopt);
}

TEST(PresentArea, ANegativeOrUnorderedSizeIsNoArea) {
  EXPECT_EQ(presentArea(Rect{10.0, 10.0, -5.0, 32.0}), std::nullopt);
  EXPECT_EQ(presentArea(Rect{10.0, 10.0, 5.0, std::numeric_limits<double>::quiet_NaN()}),
            std::nullopt);
}

TEST(PresentArea, AStripBesideTheHousingIsKeptAsItIs) {
  const Rect left{0.0, 1085.0, 663.25, 32.0};
  EXPECT_EQ(presentArea(left), left);
}

TEST(ToNanojoules, ScalesByTheChannelsUnit) {
  EXPECT_EQ(toNanojoules(7, "mJ"), 7'000'000);
  EXPECT_EQ(toNanojoules(7, "uJ"), 7'000);
  EXPECT_EQ(toNanojoules(7, "nJ"), 7);
  EXPECT_EQ(toNanojoules(7, "J"), 7'000'000'000);
}

TEST(ToNanojoules, AcceptsBothMicroSigns) {
  EXPECT_EQ(toNanojoules(3, "\u00b5J"), 3'000);  // micro sign
  EXPECT_EQ(toNanojoules(3, "\u03bcJ"), 3'000);  // Greek small mu
}

TEST(ToNanojoules, IgnoresBlanksAroundTheLabel) {
  EXPECT_EQ(toNanojoules(2, " mJ  "), 2'000'000);
  EXPECT_EQ(toNanojoules(2, "\tnJ\n"), 2);
}

TEST(ToNanojoules, PicojoulesAreDividedDown) {
  EXPECT_EQ(toNanojoules(12'345, "pJ"), 12);
}

TEST(ToNanojoules, AMissingOrUnknownLabelLeavesTheValueAsNanojoules) {
  EXPECT_EQ(toNanojoules(4'200, ""), 4'200);
  EXPECT_EQ(toNanojoules(4'200, "   "), 4'200);
  EXPECT_EQ(toNanojoules(4'200, "MJ"), 4'200);
  EXPECT_EQ(toNanojoules(4'200, "mj"), 4'200);  // unit letters are case-sensitive
}

TEST(ToNanojoules, NegativeCountersScaleLikeAnyOther) {
  EXPECT_EQ(toNanojoules(-5, "mJ"), -5'000'000);
}

TEST(ToNanojoules, AValueThatCannotBeScaledIsNothing) {
  constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
  EXPECT_EQ(toNanojoules(kMax / 1'000'000 + 1, "mJ"), std::nullopt);
  EXPECT_EQ(toNanojoules(kMax / 1'000'000, "mJ"), kMax / 1'000'000 * 1'000'000);
  EXPECT_EQ(toNanojoules(std::numeric_limits<std::int64_t>::min(), "uJ"), std::nullopt);
  EXPECT_EQ(toNanojoules(kMax, "nJ"), kMax);
}

TEST(SymbolPlacement, ASymbolWithoutAreaOrASquareWithoutPixelsIsNothing) {
  EXPECT_EQ(symbolPlacement(Size{0.0, 14.0}, 32), std::nullopt);
  EXPECT_EQ(symbolPlacement(Size{15.0, -1.0}, 32), std::nullopt);
  EXPECT_EQ(symbolPlacement(Size{15.0, 14.0}, 0), std::nullopt);
  EXPECT_EQ(symbolPlacement(Size{15.0, 14.0}, -8), std::nullopt);
}

TEST(SymbolPlacement, ASquareBeyondTheLargestIsNothing) {
  EXPECT_EQ(symbolPlacement(Size{16.0, 16.0}, kLargestSymbolSide),
            (Rect{0.0, 0.0, double(kLargestSymbolSide), double(kLargestSymbolSide)}));
  EXPECT_EQ(symbolPlacement(Size{16.0, 16.0}, kLargestSymbolSide + 1), std::nullopt);
  EXPECT_EQ(symbolPlacement(Size{16.0, 16.0}, std::numeric_limits<int>::max()), std::nullopt);
}

TEST(SymbolPlacement, ANonFiniteSizeIsNothing) {
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(symbolPlacement(Size{kNaN, 14.0}, 32), std::nullopt);
  EXPECT_EQ(symbolPlacement(Size{15.0, kInfinity}, 32), std::nullopt);
}

TEST(SymbolPlacement, ASquareSymbolFillsTheSquare) {
  EXPECT_EQ(symbolPlacement(Size{16.0, 16.0}, 32), (Rect{0.0, 0.0, 32.0, 32.0}));
}

TEST(SymbolPlacement, AWideSymbolSpansTheWidthAndIsCentredVertically) {
  EXPECT_EQ(symbolPlacement(Size{20.0, 10.0}, 40), (Rect{0.0, 10.0, 40.0, 20.0}));
}

TEST(SymbolPlacement, ATallSymbolSpansTheHeightAndIsCentredHorizontally) {
  EXPECT_EQ(symbolPlacement(Size{8.0, 16.0}, 32), (Rect{8.0, 0.0, 16.0, 32.0}));
}

TEST(SymbolPlacement, ASmallSymbolIsScaledUpToTheSquare) {
  const std::optional<Rect> placed = symbolPlacement(Size{15.0, 12.0}, 60);
  ASSERT_TRUE(placed.has_value());
  EXPECT_DOUBLE_EQ(placed->width, 60.0);
  EXPECT_DOUBLE_EQ(placed->height, 48.0);
  EXPECT_DOUBLE_EQ(placed->y, 6.0);
}

TEST(VolumeCapacities, ASpuriousZeroForImportantUsageFallsBackToThePlainAvailableCapacity) {
  EXPECT_EQ(volumeCapacities(0, 120'000'000'000, 494'384'795'648),
            (DiskCapacities{.available = 120'000'000'000, .total = 494'384'795'648}));
}

TEST(VolumeCapacities, AMissingImportantUsageFigureFallsBackToThePlainAvailableCapacity) {
  EXPECT_EQ(volumeCapacities(std::nullopt, 120'000'000'000, 494'384'795'648),
            (DiskCapacities{.available = 120'000'000'000, .total = 494'384'795'648}));
}

TEST(VolumeCapacities, AnAvailableFigureAboveTheTotalIsAbsentNotANegativeUse) {
  EXPECT_EQ(volumeCapacities(std::nullopt, 600, 500),
            (DiskCapacities{.available = std::nullopt, .total = 500}));
  EXPECT_EQ(volumeCapacities(0, 600, 500),
            (DiskCapacities{.available = std::nullopt, .total = 500}));
}

TEST(VolumeCapacities, AnImportantUsageFigureAboveTheTotalGivesWayToThePlainOne) {
  EXPECT_EQ(volumeCapacities(700, 200, 500), (DiskCapacities{.available = 200, .total = 500}));
}

TEST(VolumeCapacities, NegativeFiguresAreNoAnswer) {
  EXPECT_EQ(volumeCapacities(-1, 200, 500), (DiskCapacities{.available = 200, .total = 500}));
  EXPECT_EQ(volumeCapacities(-1, -1, 500),
            (DiskCapacities{.available = std::nullopt, .total = 500}));
}

TEST(VolumeCapacities, NoAnswerAtAllLeavesBothAbsent) {
  EXPECT_EQ(volumeCapacities(std::nullopt, std::nullopt, std::nullopt), DiskCapacities{});
}

TEST(VolumeCapacities, AFullVolumeStillReadsAsFull) {
  // The plain figure may be a true 0; only the important-usage one is suspect at 0.
  EXPECT_EQ(volumeCapacities(0, 0, 500), (DiskCapacities{.available = 0, .total = 500}));
  EXPECT_EQ(volumeCapacities(500, 0, 500), (DiskCapacities{.available = 500, .total = 500}));
}

TEST(VolumeCapacities, TheImportantUsageFigureIsPreferredWhenItIsPlausible) {
  // Purgeable space counts as free in it, so it is the larger one.
  EXPECT_EQ(volumeCapacities(180'000'000'000, 120'000'000'000, 494'384'795'648),
            (DiskCapacities{.available = 180'000'000'000, .total = 494'384'795'648}));
}

TEST(VolumeCapacities, WithoutATotalAnyNonNegativeFigureIsKept) {
  EXPECT_EQ(volumeCapacities(std::nullopt, 7, std::nullopt),
            (DiskCapacities{.available = 7, .total = std::nullopt}));
}

TEST(PreferenceBool, BooleansReadAsThemselves) {
  EXPECT_EQ(preferenceBool(PropertyValue(true)), true);
  EXPECT_EQ(preferenceBool(PropertyValue(false)), false);
}

TEST(PreferenceBool, NumbersAreTrueWhenNotZero) {
  // `defaults write … -int 1`, `-int 0`, `-float 0.5`.
  EXPECT_EQ(preferenceBool(PropertyValue(1)), true);
  EXPECT_EQ(preferenceBool(PropertyValue(-3)), true);
  EXPECT_EQ(preferenceBool(PropertyValue(0)), false);
  EXPECT_EQ(preferenceBool(PropertyValue(0.5)), true);
  EXPECT_EQ(preferenceBool(PropertyValue(0.0)), false);
  EXPECT_EQ(preferenceBool(PropertyValue(std::numeric_limits<double>::quiet_NaN())), std::nullopt);
}

TEST(PreferenceBool, StringsReadAsTheirBooleanValue) {
  // `defaults write … -string YES` and its relatives.
  for (const char* yes :
       {"YES", "yes", "Y", "true", "TRUE", "t", "1", "  7", "+001", "-2", "yup"}) {
    EXPECT_EQ(preferenceBool(PropertyValue(yes)), true) << yes;
  }
  for (const char* no : {"NO", "no", "false", "0", "000", "", "   ", "nope", "-0", "+", "x1"}) {
    EXPECT_EQ(preferenceBool(PropertyValue(no)), false) << no;
  }
}

TEST(PreferenceBool, ListsAndDictionariesAreNoBoolean) {
  EXPECT_EQ(preferenceBool(PropertyValue(PropertyList{PropertyValue(true)})), std::nullopt);
  EXPECT_EQ(preferenceBool(PropertyValue(PropertyDict{{"isPinned", true}})), std::nullopt);
}

}  // namespace
}  // namespace brimly
