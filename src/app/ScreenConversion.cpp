#include "app/ScreenConversion.h"

#include <algorithm>

namespace brimly {

Rect toRect(const QRect& rect) {
  return Rect{static_cast<double>(rect.x()), static_cast<double>(rect.y()),
              static_cast<double>(rect.width()), static_cast<double>(rect.height())};
}

double topStripThickness(const QRect& geometry, const QRect& availableGeometry) {
  if (availableGeometry.isEmpty() || !geometry.contains(availableGeometry)) return 0.0;
  return std::max(0, availableGeometry.top() - geometry.top());
}

}  // namespace brimly
