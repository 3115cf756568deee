#pragma once

#include <QImage>
#include <QRectF>
#include <QSize>

namespace brimly {

// The soft shadow a card casts: a rounded rectangle of black at `opacity`, moved down by
// `offsetY`, blurred by `radius` points. Drawn once per size into an image the card paints under
// itself, because the card's window has no shadow of its own.
QImage cardShadow(QSize windowSize, const QRectF& card, double cornerRadius, double radius,
                  double offsetY, double opacity, qreal devicePixelRatio);

}  // namespace brimly
