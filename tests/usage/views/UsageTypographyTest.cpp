#include "usage/views/UsageTypography.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QFontDatabase>
#include <QImage>
#include <optional>
#include <utility>

#include "InstalledFaces.h"
#include "ReferenceTypography.h"

namespace brimly {
namespace {

// An installed family with an upright regular and bold face and none between them, as DejaVu Sans,
// Nimbus Sans and Helvetica are; nothing when there is none.
std::optional<QString> familyWithoutSemiboldOrMedium() {
  for (const QString& family : QFontDatabase::families()) {
    bool regular = false;
    bool bold = false;
    bool between = false;
    for (const QString& style : QFontDatabase::styles(family)) {
      if (QFontDatabase::italic(family, style)) continue;
      const int weight = QFontDatabase::weight(family, style);
      regular = regular || weight == QFont::Normal;
      bold = bold || weight == QFont::Bold;
      between = between || (weight > QFont::Normal && weight < QFont::Bold);
    }
    if (regular && bold && !between) return family;
  }
  return std::nullopt;
}

TEST(UsageTypographyTest, AFamilyWithoutASemiboldIsDrawnAtItsNearestLighterWeight) {
  // Semibold and medium would borrow the far heavier bold.
  const std::optional<QString> family = familyWithoutSemiboldOrMedium();
  if (!family) GTEST_SKIP() << "no installed family has a regular and a bold face and none between";
  const UsageTypography typography = UsageTypography::of(*family, *family);
  EXPECT_EQ(typography.labelWeight, QFont::Normal) << family->toStdString();
  EXPECT_EQ(typography.valueWeight, QFont::Normal) << family->toStdString();
  EXPECT_EQ(typography.detailWeight, QFont::Normal) << family->toStdString();
  EXPECT_EQ(typography.dashWeight, QFont::Normal) << family->toStdString();
}

TEST(UsageTypographyTest, TheDesignedFacesKeepTheirWeights) {
  if (const auto missing = testing::missingFaces(testing::panelFaces)) GTEST_SKIP() << *missing;
  const UsageTypography designed = testing::designedTypography();
  EXPECT_EQ(designed.labelWeight, QFont::Bold);
  EXPECT_EQ(designed.valueWeight, QFont::Medium);
  EXPECT_EQ(designed.detailWeight, QFont::Normal);
}

TEST(UsageTypographyTest, TheSystemsRoundedDesignComesFirstForTheLabels) {
  // Any installed family stands in for the rounded design macOS hands over.
  const QStringList installed = QFontDatabase::families();
  ASSERT_FALSE(installed.isEmpty());
  const UsageTypography typography = UsageTypography::preferring(installed.last());
  EXPECT_EQ(typography.labelFamily, installed.last());
  EXPECT_EQ(typography.dashWeight, UsageTypography::of(installed.last(), {}).dashWeight);
}

TEST(UsageTypographyTest, WithoutItTheFirstInstalledRoundedFamilyStandsIn) {
  if (const auto missing = testing::missingFaces({"Quicksand"})) GTEST_SKIP() << *missing;
  const UsageTypography typography = UsageTypography::preferring({});
  EXPECT_EQ(typography.labelFamily, QStringLiteral("Quicksand"));
  EXPECT_EQ(typography.labelWeight, QFont::Bold);
}

TEST(UsageTypographyTest, AFontFileIsLoadedUnderItsOwnFamily) {
  // Files that scripts/install-deps installs, and one every Mac has.
  const std::pair<const char*, const char*> known[] = {
      {"/usr/share/fonts/opentype/urw-base35/NimbusSans-Regular.otf", "Nimbus Sans"},
      {"/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf", "DejaVu Sans"},
      {"/System/Library/Fonts/Helvetica.ttc", "Helvetica"}};
  for (const auto& [file, family] : known) {
    if (!QFileInfo::exists(QString::fromLatin1(file))) continue;
    EXPECT_EQ(UsageTypography::familyOfFontFile(QString::fromLatin1(file)),
              QString::fromLatin1(family));
    return;
  }
  GTEST_SKIP() << "none of the font files this test knows is on this machine";
}

TEST(UsageTypographyTest, AFileThatIsNoFontGivesNoFamily) {
  EXPECT_TRUE(UsageTypography::familyOfFontFile(QStringLiteral("/no/such/font.ttf")).isEmpty());
  EXPECT_TRUE(UsageTypography::familyOfFontFile(QStringLiteral(__FILE__)).isEmpty());
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

TEST(UsageTypographyTest, ALargerScaleMakesEveryFontAndTheTrackingThatMuchLarger) {
  QImage image(10, 10, QImage::Format_ARGB32);
  const UsageTypography larger = testing::designedTypography().scaledTo(1.25);
  const auto pixels = [&image](const QFont& font) {
    return font.pointSizeF() * image.logicalDpiY() / 72.0;
  };
  EXPECT_NEAR(pixels(larger.labelFont(image)), 9.5 * 1.25, 1e-9);
  EXPECT_NEAR(pixels(larger.valueFont(image)), 13.0 * 1.25, 1e-9);
  EXPECT_NEAR(pixels(larger.detailFont(image)), 9.5 * 1.25, 1e-9);
  EXPECT_NEAR(pixels(larger.dashFont(image)), 13.0 * 1.25, 1e-9);
  EXPECT_NEAR(larger.labelFont(image).letterSpacing(), 0.7 * 1.25, 1.0 / 64.0);
  // The faces and weights stay those of the usual size.
  EXPECT_EQ(larger.labelFont(image).family(),
            testing::designedTypography().labelFont(image).family());
  EXPECT_EQ(larger.valueWeight, testing::designedTypography().valueWeight);
}

}  // namespace
}  // namespace brimly
