#pragma once

#include <QGuiApplication>
#include <QRect>
#include <QRectF>
#include <QScreen>

#include "core/Geometry.h"
#include "panel/DesktopCoordinates.h"

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

// Qt's global coordinates (top-left origin) against the logic's (bottom-left origin), flipped
// around the primary screen as it is now.
inline DesktopCoordinates qtDesktopCoordinates() {
  const QScreen* primary = QGuiApplication::primaryScreen();
  return DesktopCoordinates(primary != nullptr ? toRect(primary->geometry()) : Rect{});
}

}  // namespace brimly
