#include "desktop/HotZone.h"

#include <cmath>

namespace brimly {

QRect hotZoneRect(HoverZonePort::Zone zone, const RootViewMetrics& metrics, int surfaceWidth) {
  if (zone == HoverZonePort::Zone::none) return QRect();
  const double openness = zone == HoverZonePort::Zone::openCard ? 1.0 : 0.0;
  const Rect card = metrics.cardFrame(surfaceWidth, openness);
  const int left = static_cast<int>(std::floor(card.minX()));
  const int top = static_cast<int>(std::floor(card.minY()));
  const int right = static_cast<int>(std::ceil(card.maxX()));
  const int bottom = static_cast<int>(std::ceil(card.maxY()));
  return QRect(left, top, right - left, bottom - top);
}

}  // namespace brimly
