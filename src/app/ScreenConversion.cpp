#include "app/ScreenConversion.h"

#include <algorithm>

namespace brimly {

double desktopHeight(const QList<QRect>& screenGeometries) {
  double height = 0.0;
  for (const QRect& geometry : screenGeometries) {
    // QRect::bottom() is the last row inside; the edge is one below it.
    height = std::max(height, static_cast<double>(geometry.y()) + geometry.height());
  }
  return height;
}

Rect bottomLeftFrame(const QRect& topLeftGeometry, double desktopHeight) {
  const double top = topLeftGeometry.y();
  const double height = topLeftGeometry.height();
  return Rect{static_cast<double>(topLeftGeometry.x()), desktopHeight - (top + height),
              static_cast<double>(topLeftGeometry.width()), height};
}

double topStripThickness(const QRect& geometry, const QRect& availableGeometry) {
  if (availableGeometry.isEmpty() || !geometry.contains(availableGeometry)) return 0.0;
  return std::max(0, availableGeometry.top() - geometry.top());
}

}  // namespace brimly
