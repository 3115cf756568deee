#include "usage/views/UsageFonts.h"

#include <gtest/gtest.h>

#include <QImage>

#include "ReferenceTypography.h"

namespace brimly {
namespace {

QImage deviceAt(int dotsPerMeter) {
  QImage image(4, 4, QImage::Format_ARGB32_Premultiplied);
  image.setDotsPerMeterX(dotsPerMeter);
  image.setDotsPerMeterY(dotsPerMeter);
  return image;
}

TEST(UsageFonts, AreTheTypographysFontsForTheDevice) {
  const UsageTypography typography = testing::designedTypography();
  UsageFonts fonts(typography);
  const QImage device = deviceAt(3780);  // 96 dpi
  const UsageFontSet& made = fonts.on(device);
  EXPECT_EQ(made.label, typography.labelFont(device));
  EXPECT_EQ(made.value, typography.valueFont(device));
  EXPECT_EQ(made.detail, typography.detailFont(device));
  EXPECT_EQ(made.dash, typography.dashFont(device));
  EXPECT_EQ(fonts.dpi(), device.logicalDpiY());
}

TEST(UsageFonts, ADeviceOfAnotherResolutionGetsFontsOfItsOwn) {
  const UsageTypography typography = testing::designedTypography();
  UsageFonts fonts(typography);
  const QImage screen = deviceAt(3780);
  const QImage dense = deviceAt(5669);  // 144 dpi
  const QFont onScreen = fonts.on(screen).value;
  EXPECT_EQ(fonts.on(dense).value, typography.valueFont(dense));
  EXPECT_NE(fonts.on(dense).value.pointSizeF(), onScreen.pointSizeF());
  EXPECT_EQ(fonts.on(screen).value, onScreen);
}

}  // namespace
}  // namespace brimly
