#include "ui/WindowFonts.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <QImage>

#include "InstalledFaces.h"

namespace brimly {
namespace {

#ifdef __APPLE__
constexpr bool systemFontIsTheWindowsFace = true;
#else
constexpr bool systemFontIsTheWindowsFace = false;
#endif

QImage device() {
  return QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
}

TEST(WindowFontsTest, OnLinuxTheWindowsAreSetInInterWhereItIsInstalled) {
  if (systemFontIsTheWindowsFace) GTEST_SKIP() << "macOS sets the windows in its system font";
  if (const auto missing = testing::missingFaces({"Inter"})) GTEST_SKIP() << *missing;
  EXPECT_EQ(windowFamily(), QStringLiteral("Inter"));
  EXPECT_EQ(QFontInfo(windowFont(device(), 12, QFont::Normal)).family(), QStringLiteral("Inter"));
}

TEST(WindowFontsTest, WithoutInterTheSystemsInterfaceFontStandsIn) {
  if (!systemFontIsTheWindowsFace && !testing::missingFaces({"Inter"})) {
    GTEST_SKIP() << "Inter is installed (run with .ci/fonts-of-another-system.conf to hide it)";
  }
  EXPECT_EQ(windowFamily(), QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
}

TEST(WindowFontsTest, MediumAndSemiboldAreTheFamilysOwnFaces) {
  if (const auto missing = testing::missingFaces(testing::windowFaces)) GTEST_SKIP() << *missing;
  // Not regular and bold standing in for them: the footer's buttons and the tabs are medium,
  // the captions and the preview's labels semibold.
  EXPECT_EQ(QFontInfo(windowFont(device(), 12, QFont::Medium)).styleName(), "Medium");
  EXPECT_EQ(QFontInfo(windowFont(device(), 8, QFont::DemiBold, 0.5)).styleName(), "Semi Bold");
  EXPECT_EQ(QFontInfo(windowFont(device(), 12.5, QFont::Normal)).styleName(), "Regular");
}

TEST(WindowFontsTest, TheMetricRowsTitlesSpeakInTheWindowsVoice) {
  if (systemFontIsTheWindowsFace) GTEST_SKIP() << "macOS has its system font's rounded design";
  // Without a rounded design of the windows' family, no second family of other proportions.
  const QFont titles = roundedWindowFont(device(), 12.5, QFont::Normal);
  EXPECT_EQ(titles.family(), windowFamily());
  EXPECT_EQ(QFontInfo(titles).family(),
            QFontInfo(windowFont(device(), 12.5, QFont::Normal)).family());
}

TEST(WindowFontsTest, SizesArePointsOfTheDeviceAndTrackingWidens) {
  QImage image = device();
  const QFont font = windowFont(image, 12, QFont::Medium, 0.8);
  EXPECT_DOUBLE_EQ(font.pointSizeF(), 12.0 * 72.0 / image.logicalDpiY());
  EXPECT_EQ(font.letterSpacingType(), QFont::AbsoluteSpacing);
  EXPECT_NEAR(font.letterSpacing(), 0.8, 1.0 / 64);  // Qt keeps it in 64ths
  EXPECT_EQ(font.weight(), QFont::Medium);
}

}  // namespace
}  // namespace brimly
