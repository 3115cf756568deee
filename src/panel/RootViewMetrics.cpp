#include "panel/RootViewMetrics.h"

#include "panel/TimingCurve.h"

namespace brimly {

RootViewMetrics RootViewMetrics::forNotch(Size notch, bool hasNotch, double scale) {
  return {.notchInsetTop = notch.height,
          .notchWidth = notch.width,
          .expandedWidth = openWidth * scale,
          .expandedHeight = notch.height + contentHeight * scale,
          .hasNotch = hasNotch,
          .scale = scale};
}

Rect RootViewMetrics::cardFrame(double viewWidth, double openness) const {
  const double width = notchWidth + (expandedWidth - notchWidth) * openness;
  const double height = notchInsetTop + (expandedHeight - notchInsetTop) * openness;
  return {(viewWidth - width) / 2.0, 0.0, width, height};
}

double RootViewMetrics::cardOpacity(double openness) const {
  if (hasNotch) return 1.0;
  return TimingCurve::easeInOut()(openness / fadeInOpenness);
}

NotchShape RootViewMetrics::cardOutline(const NotchShape& usual, double openness) const {
  const double growth = 1.0 + (scale - 1.0) * openness;
  return {usual.topRadius * growth, usual.bottomRadius * growth};
}

Rect RootViewMetrics::contentFrame(double viewWidth) const {
  return {(viewWidth - expandedWidth) / 2.0, 0.0, expandedWidth, expandedHeight};
}

}  // namespace brimly
