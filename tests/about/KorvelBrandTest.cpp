#include "about/KorvelBrand.h"

#include <gtest/gtest.h>

#include "about/KorvelLogoData.h"

namespace brimly {
namespace {

TEST(KorvelBrandTest, TextThatIsNotBase64GivesNoLogo) {
  EXPECT_FALSE(KorvelBrand::decodeLogo("this is not base64!").has_value());
  EXPECT_FALSE(KorvelBrand::decodeLogo("iVBORw0KGgo*AAAA").has_value());
}

TEST(KorvelBrandTest, NothingGivesNoLogo) {
  EXPECT_FALSE(KorvelBrand::decodeLogo("").has_value());
}

TEST(KorvelBrandTest, BytesThatAreNotAnImageGiveNoLogo) {
  // Valid base64 of "Hello, world!".
  EXPECT_FALSE(KorvelBrand::decodeLogo("SGVsbG8sIHdvcmxkIQ==").has_value());
  // The logo cut short: a PNG header with no picture after it.
  EXPECT_FALSE(KorvelBrand::decodeLogo(korvelLogoBase64.substr(0, 400)).has_value());
}

TEST(KorvelBrandTest, TheCarriedLogoIsA600By233PictureWithTransparency) {
  const std::optional<QImage>& logo = KorvelBrand::logo();
  ASSERT_TRUE(logo.has_value());
  EXPECT_EQ(logo->size(), QSize(600, 233));
  EXPECT_TRUE(logo->hasAlphaChannel());
  const QImage pixels = logo->convertToFormat(QImage::Format_ARGB32);
  EXPECT_EQ(qAlpha(pixels.pixel(0, 0)), 0);  // transparent around the mark
  int opaque = 0;
  for (int y = 0; y < pixels.height(); ++y) {
    for (int x = 0; x < pixels.width(); ++x)
      opaque += qAlpha(pixels.pixel(x, y)) == 255;
  }
  EXPECT_GT(opaque, 600 * 233 / 10);
}

TEST(KorvelBrandTest, TheLogoIsDecodedOnce) {
  // Every decoding makes a picture of its own, with a key of its own; the same picture again
  // keeps its key.
  const std::optional<QImage>& first = KorvelBrand::logo();
  ASSERT_TRUE(first.has_value());
  const qint64 key = first->cacheKey();
  ASSERT_NE(key, KorvelBrand::decodeLogo(korvelLogoBase64)->cacheKey());
  EXPECT_EQ(KorvelBrand::logo()->cacheKey(), key);
}

TEST(KorvelBrandTest, TheCarriedTextIsTheWordmarkInTheSourceTree) {
  // scripts/embed-korvel-logo regenerates the text from the PNG; the two must not drift apart.
  QImage source;
  ASSERT_TRUE(source.load(BRIMLY_KORVEL_LOGO_PNG));
  ASSERT_TRUE(KorvelBrand::logo().has_value());
  EXPECT_EQ(KorvelBrand::logo()->convertToFormat(QImage::Format_ARGB32),
            source.convertToFormat(QImage::Format_ARGB32));
}

}  // namespace
}  // namespace brimly
