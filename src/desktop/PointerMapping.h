#pragma once

#include <QList>
#include <QPointF>
#include <QRect>

namespace brimly {

// One screen as Qt scales it: its geometry in device-independent pixels and its ratio.
struct ScreenScale {
  QRect geometry;
  qreal devicePixelRatio = 1.0;
};

// The X server reports the pointer, and StatusNotifierItem hosts report their clicks, in device
// pixels; Qt lays screens out in device-independent pixels, keeping each screen's top-left corner
// where it is and dividing distances from that corner by the screen's ratio. A point on no screen
// is left as it is.
QPointF logicalFromNative(QPointF native, const QList<ScreenScale>& screens);

// Qt's screens as they are now.
QList<ScreenScale> qtScreenScales();

}  // namespace brimly
