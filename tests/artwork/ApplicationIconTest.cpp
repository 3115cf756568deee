#include <gtest/gtest.h>

#include <QList>
#include <QPixmap>

#include "ReferenceImage.h"
#include "artwork/Symbols.h"

namespace brimly {
namespace {

// How far apart two colours are, as the largest difference of a channel.
int distance(QRgb a, QRgb b) {
  return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                   std::abs(qBlue(a) - qBlue(b))});
}

int countNear(const QImage& image, QRgb colour, int tolerance) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      if (qAlpha(pixel) == 255 && distance(pixel, colour) <= tolerance) ++count;
    }
  }
  return count;
}

QImage iconImage(int size) {
  return applicationIcon().pixmap(size, size).toImage().convertToFormat(QImage::Format_ARGB32);
}

TEST(ApplicationIconTest, HasEverySizeFromSixteenTo512) {
  const QList<QSize> sizes = applicationIcon().availableSizes();
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
    EXPECT_TRUE(sizes.contains(QSize(size, size))) << size;
  }
  EXPECT_EQ(sizes.size(), 9);
}

TEST(ApplicationIconTest, IsARoundedTileWithTheCardAndTheGreenGauge) {
  for (const int size : {16, 32, 128, 512}) {
    const QImage image = iconImage(size);
    ASSERT_EQ(image.size(), QSize(size, size));
    // The tile's corners are rounded off; its middle is opaque.
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0) << size;
    EXPECT_EQ(qAlpha(image.pixel(size - 1, size - 1)), 0) << size;
    EXPECT_EQ(qAlpha(image.pixel(size / 2, size / 2)), 255) << size;
    // The black card hangs from the top edge, in the middle.
    EXPECT_LE(distance(image.pixel(size / 2, size * 6 / 64), qRgb(0, 0, 0)), 4) << size;
    // The gauge's arc is in the accent green.
    EXPECT_GT(countNear(image, qRgb(0x4D, 0xC7, 0x8C), 12), size * size / 100) << size;
  }
}

TEST(ApplicationIconTest, MatchesTheReferenceAt128Pixels) {
  EXPECT_TRUE(testing::matchesReference(iconImage(128),
                                        QString(BRIMLY_REFERENCE_DIR) + "/app-icon-128.png"));
}

}  // namespace
}  // namespace brimly
