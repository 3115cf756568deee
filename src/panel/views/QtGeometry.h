#pragma once

#include <QRect>
#include <QRectF>

#include "core/Geometry.h"

namespace brimly {

// A Qt rectangle (top-left origin, whole pixels) as a plain rectangle in the same coordinates.
inline Rect toRect(const QRect& rect) {
  return Rect{static_cast<double>(rect.x()), static_cast<double>(rect.y()),
              static_cast<double>(rect.width()), static_cast<double>(rect.height())};
}

// A plain rectangle as a Qt one, in the same coordinates.
inline QRectF toQRectF(const Rect& rect) {
  return QRectF(rect.x, rect.y, rect.width, rect.height);
}

}  // namespace brimly
