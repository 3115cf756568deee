#include "desktop/statusnotifier/StatusNotifierTypes.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>

namespace brimly {
namespace {

TEST(NotifierPixmap, PixelsGoRowByRowAlphaFirstInNetworkByteOrder) {
  QImage image(2, 2, QImage::Format_ARGB32);
  image.setPixel(0, 0, qRgba(0x11, 0x22, 0x33, 0xff));
  image.setPixel(1, 0, qRgba(0x44, 0x55, 0x66, 0x80));
  image.setPixel(0, 1, qRgba(0, 0, 0, 0));
  image.setPixel(1, 1, qRgba(0xaa, 0xbb, 0xcc, 0xdd));
  const NotifierPixmap pixmap = notifierPixmap(image);
  EXPECT_EQ(pixmap.width, 2);
  EXPECT_EQ(pixmap.height, 2);
  EXPECT_EQ(pixmap.pixels, QByteArray("\xff\x11\x22\x33"
                                      "\x80\x44\x55\x66"
                                      "\x00\x00\x00\x00"
                                      "\xdd\xaa\xbb\xcc",
                                      16));
}

TEST(NotifierPixmap, APremultipliedImageIsGivenStraightAlpha) {
  QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
  image.fill(QColor(0xff, 0x00, 0x00, 0x80));  // kept as (0x80, 0, 0) beside alpha 0x80
  const NotifierPixmap pixmap = notifierPixmap(image);
  EXPECT_EQ(pixmap.pixels, QByteArray("\x80\xff\x00\x00", 4));
}

TEST(NotifierPixmap, ANullImageIsAnEmptyPicture) {
  const NotifierPixmap pixmap = notifierPixmap(QImage());
  EXPECT_EQ(pixmap.width, 0);
  EXPECT_EQ(pixmap.height, 0);
  EXPECT_TRUE(pixmap.pixels.isEmpty());
}

}  // namespace
}  // namespace brimly
