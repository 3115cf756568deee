#include "usage/views/BarTrack.h"

#include <QPainter>
#include <algorithm>

#include "panel/views/QtGeometry.h"
#include "usage/Theme.h"
#include "usage/views/QtColor.h"

namespace brimly {

namespace {

const QColor& trackColour() {
  static const QColor colour = toQColor(Theme::barTrack);
  return colour;
}

void fillTrack(QPainter& painter, const Rect& frame) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(trackColour());
  fillCapsule(painter, frame);
}

}  // namespace

void fillCapsule(QPainter& painter, const Rect& frame) {
  const double radius = std::min(frame.width, frame.height) / 2.0;
  // Laid out on the stack: the same pixels as filling a rounded-rectangle path, without making
  // one.
  painter.drawRoundedRect(toQRectF(frame), radius, radius);
}

void BarTrack::paint(QPainter& painter, Point at) {
  const Rect frame{at.x, at.y, size_.width, size_.height};
  const QTransform& toDevice = painter.deviceTransform();
  const QPointF origin = toDevice.map(QPointF(at.x, at.y));
  if (toDevice.type() > QTransform::TxTranslate || origin != QPointF(origin.toPoint())) {
    fillTrack(painter, frame);
    return;
  }
  if (image_.isNull()) {
    image_ = QImage(toQRectF({0.0, 0.0, size_.width, size_.height}).toAlignedRect().size(),
                    QImage::Format_ARGB32_Premultiplied);
    image_.fill(Qt::transparent);
    QPainter onImage(&image_);
    onImage.setRenderHint(QPainter::Antialiasing);
    fillTrack(onImage, {0.0, 0.0, size_.width, size_.height});
  }
  painter.drawImage(QPointF(at.x, at.y), image_);
}

}  // namespace brimly
