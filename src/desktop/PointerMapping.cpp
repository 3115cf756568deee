#include "desktop/PointerMapping.h"

#include <QGuiApplication>
#include <QRectF>
#include <QScreen>

namespace brimly {

QPointF logicalFromNative(QPointF native, const QList<ScreenScale>& screens) {
  for (const ScreenScale& screen : screens) {
    const qreal ratio = screen.devicePixelRatio > 0.0 ? screen.devicePixelRatio : 1.0;
    const QPointF origin = screen.geometry.topLeft();
    const QRectF nativeArea(origin, QSizeF(screen.geometry.size()) * ratio);
    if (nativeArea.contains(native)) return origin + (native - origin) / ratio;
  }
  return native;
}

QList<ScreenScale> qtScreenScales() {
  QList<ScreenScale> screens;
  for (const QScreen* screen : QGuiApplication::screens()) {
    screens.push_back({screen->geometry(), screen->devicePixelRatio()});
  }
  return screens;
}

}  // namespace brimly
