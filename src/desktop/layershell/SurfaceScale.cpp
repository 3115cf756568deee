#include "desktop/layershell/SurfaceScale.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace brimly {
namespace {

int largest(const std::vector<int>& scales) {
  int result = 0;
  for (const int scale : scales)
    result = std::max(result, scale);
  return result;
}

int scaled(int length, double ratio) {
  return static_cast<int>(std::lround(length * ratio));  // halves away from zero
}

}  // namespace

SurfaceScale SurfaceScale::whole(int scale) {
  return SurfaceScale(std::max(scale, 1) * denominator, false);
}

SurfaceScale SurfaceScale::fractional(int numerator) {
  return SurfaceScale(numerator > 0 ? numerator : denominator, true);
}

SurfaceScale SurfaceScale::choose(std::optional<int> preferredFraction, bool viewportAvailable,
                                  const std::vector<int>& enteredOutputScales,
                                  const std::vector<int>& allOutputScales) {
  if (preferredFraction && *preferredFraction > 0 && viewportAvailable) {
    return fractional(*preferredFraction);
  }
  const int entered = largest(enteredOutputScales);
  return whole(entered > 0 ? entered : largest(allOutputScales));
}

QSize SurfaceScale::bufferSize(QSize points) const {
  return QSize(scaled(points.width(), ratio()), scaled(points.height(), ratio()));
}

QRegion SurfaceScale::alignedRegion(const QRegion& points, QSize surfacePoints) const {
  // Points that are a multiple of this are whole pixels at the scale.
  const int step = denominator / std::gcd(numerator_, denominator);
  const QRect surface(QPoint(0, 0), surfacePoints);
  QRegion aligned;
  for (const QRect& rect : points) {
    const int left = rect.left() / step * step;
    const int top = rect.top() / step * step;
    const int right = (rect.right() + step) / step * step;  // one past, rounded up
    const int bottom = (rect.bottom() + step) / step * step;
    aligned += QRect(left, top, right - left, bottom - top) & surface;
  }
  return aligned;
}

QRegion SurfaceScale::bufferRegion(const QRegion& points, QSize surfacePoints) const {
  const QRect buffer(QPoint(0, 0), bufferSize(surfacePoints));
  QRegion pixels;
  for (const QRect& rect : points) {
    const int left = static_cast<int>(std::floor(rect.left() * ratio()));
    const int top = static_cast<int>(std::floor(rect.top() * ratio()));
    const int right = static_cast<int>(std::ceil((rect.right() + 1) * ratio()));
    const int bottom = static_cast<int>(std::ceil((rect.bottom() + 1) * ratio()));
    pixels += QRect(QPoint(left, top), QPoint(right - 1, bottom - 1)) & buffer;
  }
  return pixels;
}

}  // namespace brimly
