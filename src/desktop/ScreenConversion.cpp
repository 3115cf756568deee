#include "desktop/ScreenConversion.h"

#include <algorithm>

namespace brimly {

double topStripThickness(const QRect& geometry, const QRect& availableGeometry) {
  if (availableGeometry.isEmpty() || !geometry.contains(availableGeometry)) return 0.0;
  return std::max(0, availableGeometry.top() - geometry.top());
}

}  // namespace brimly
