#include "usage/views/UsageTypography.h"

#include <gtest/gtest.h>

#include <QImage>

#include "ReferenceTypography.h"

namespace brimly {
namespace {

TEST(UsageTypographyTest, AFamilyWithoutASemiboldIsDrawnAtItsNearestLighterWeight) {
  // DejaVu Sans has a book and a bold face: semibold would borrow the far heavier bold.
  const UsageTypography fallback = testing::fallbackTypography();
  EXPECT_EQ(fallback.labelWeight, QFont::Normal);
  EXPECT_EQ(fallback.valueWeight, QFont::Normal);
  EXPECT_EQ(fallback.detailWeight, QFont::Normal);
}

TEST(UsageTypographyTest, TheDesignedFacesKeepTheirWeights) {
  const UsageTypography designed = testing::designedTypography();
  EXPECT_EQ(designed.labelWeight, QFont::Bold);
  EXPECT_EQ(designed.valueWeight, QFont::Medium);
  EXPECT_EQ(designed.detailWeight, QFont::Normal);
}

TEST(UsageTypographyTest, AFamilyThatIsNotInstalledKeepsTheWeightsAskedFor) {
  const UsageTypography missing = UsageTypography::of("No Such Face", "No Such Mono");
  EXPECT_EQ(missing.labelWeight, QFont::DemiBold);
  EXPECT_EQ(missing.valueWeight, QFont::Medium);
}

TEST(UsageTypographyTest, SizesAreDeviceIndependentPixels) {
  QImage twice(10, 10, QImage::Format_ARGB32);
  twice.setDevicePixelRatio(2.0);
  const QFont value = testing::designedTypography().valueFont(twice);
  EXPECT_NEAR(value.pointSizeF() * twice.logicalDpiY() / 72.0, UsageTypography::valueSize, 1e-9);
  // Qt keeps letter spacing in 64ths of a pixel.
  EXPECT_NEAR(testing::designedTypography().labelFont(twice).letterSpacing(),
              UsageTypography::labelTracking, 1.0 / 64.0);
}

}  // namespace
}  // namespace brimly
