#include "panel/RootViewMetrics.h"

namespace brimly {

RootViewMetrics RootViewMetrics::forNotch(Size notch) {
  return {notch.height, notch.width, openWidth, notch.height + contentHeight};
}

Rect RootViewMetrics::cardFrame(double viewWidth, double openness) const {
  const double width = notchWidth + (expandedWidth - notchWidth) * openness;
  const double height = notchInsetTop + (expandedHeight - notchInsetTop) * openness;
  return {(viewWidth - width) / 2.0, 0.0, width, height};
}

Rect RootViewMetrics::contentFrame(double viewWidth) const {
  return {(viewWidth - expandedWidth) / 2.0, 0.0, expandedWidth, expandedHeight};
}

}  // namespace brimly
