#include "panel/views/CardLayerEffect.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>

namespace brimly {

CardLayerEffect::CardLayerEffect(QObject* parent) : QGraphicsEffect(parent) {}

void CardLayerEffect::setClipPath(const QPainterPath& path) {
  if (path == clipPath_) return;
  clipPath_ = path;
  update();
}

void CardLayerEffect::setOpacity(double opacity) {
  if (opacity == opacity_) return;
  opacity_ = opacity;
  update();
}

void CardLayerEffect::draw(QPainter* painter) {
  if (opacity_ <= 0.0) return;
  QPoint offset;
  const QPixmap source = sourcePixmap(Qt::LogicalCoordinates, &offset, QGraphicsEffect::NoPad);
  if (source.isNull()) return;

  // Cut the content to the outline with a coverage mask: a clip path would leave hard edges.
  const qreal ratio = source.devicePixelRatio();
  QImage layer = source.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
  QImage mask(layer.size(), QImage::Format_ARGB32_Premultiplied);
  mask.setDevicePixelRatio(ratio);
  mask.fill(Qt::transparent);
  {
    QPainter maskPainter(&mask);
    maskPainter.setRenderHint(QPainter::Antialiasing);
    maskPainter.translate(-offset);
    maskPainter.fillPath(clipPath_, Qt::black);
  }
  {
    QPainter layerPainter(&layer);
    layerPainter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    layerPainter.drawImage(0, 0, mask);
  }

  painter->save();
  painter->setOpacity(painter->opacity() * opacity_);
  painter->drawImage(offset, layer);
  painter->restore();
}

}  // namespace brimly
