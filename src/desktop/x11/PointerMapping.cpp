#include "desktop/x11/PointerMapping.h"

#include <QRectF>

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

}  // namespace brimly
