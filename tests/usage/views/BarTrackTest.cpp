#include "usage/views/BarTrack.h"

#include <gtest/gtest.h>

#include <QPainter>

#include "usage/Theme.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

constexpr Size trackSize{172.0, 3.0};

QImage blackImage(double ratio) {
  QImage image(QSize(200, 12) * ratio, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::black);
  return image;
}

// The track drawn as an outline fill, at `at` on black.
QImage drawn(double ratio, Point at) {
  QImage image = blackImage(ratio);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(toQColor(Theme::barTrack));
  fillCapsule(painter, {at.x, at.y, trackSize.width, trackSize.height});
  return image;
}

QImage painted(BarTrack& track, double ratio, Point at) {
  QImage image = blackImage(ratio);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  track.paint(painter, at);
  return image;
}

TEST(BarTrack, ACopiedTrackHasTheDrawnOnesPixels) {
  BarTrack track(trackSize);
  for (const Point at : {Point{0.0, 0.0}, Point{14.0, 6.0}, Point{3.0, 2.0}}) {
    EXPECT_EQ(painted(track, 1.0, at), drawn(1.0, at)) << at.x << "," << at.y;
  }
}

TEST(BarTrack, IsDrawnWhereItCannotBeCopiedPixelForPixel) {
  BarTrack track(trackSize);
  EXPECT_EQ(painted(track, 2.0, {14.0, 6.0}), drawn(2.0, {14.0, 6.0}));
  EXPECT_EQ(painted(track, 1.0, {14.5, 6.25}), drawn(1.0, {14.5, 6.25}));
  EXPECT_EQ(painted(track, 1.5, {14.0, 6.0}), drawn(1.5, {14.0, 6.0}));
}

}  // namespace
}  // namespace brimly
