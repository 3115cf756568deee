#include "controlpanel/views/CardShadow.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

namespace brimly {
namespace {

// One pass of a running-sum box blur over the alpha channel, along rows or along columns.
void boxBlur(std::vector<float>& alpha, int width, int height, int half, bool alongRows) {
  const int lines = alongRows ? height : width;
  const int length = alongRows ? width : height;
  std::vector<float> line(static_cast<std::size_t>(length));
  const float window = static_cast<float>(2 * half + 1);
  for (int l = 0; l < lines; ++l) {
    auto at = [&](int i) -> float& {
      return alongRows ? alpha[static_cast<std::size_t>(l * width + i)]
                       : alpha[static_cast<std::size_t>(i * width + l)];
    };
    float sum = 0;
    for (int i = -half; i <= half; ++i)
      sum += (i >= 0 && i < length) ? at(i) : 0.0f;
    for (int i = 0; i < length; ++i) {
      line[static_cast<std::size_t>(i)] = sum / window;
      const int leaving = i - half;
      const int entering = i + half + 1;
      if (leaving >= 0) sum -= at(leaving);
      if (entering < length) sum += at(entering);
    }
    for (int i = 0; i < length; ++i)
      at(i) = line[static_cast<std::size_t>(i)];
  }
}

}  // namespace

QImage cardShadow(QSize windowSize, const QRectF& card, double cornerRadius, double radius,
                  double offsetY, double opacity, qreal devicePixelRatio) {
  const int width = static_cast<int>(std::ceil(windowSize.width() * devicePixelRatio));
  const int height = static_cast<int>(std::ceil(windowSize.height() * devicePixelRatio));
  QImage shape(width, height, QImage::Format_Alpha8);
  shape.fill(0);
  {
    QPainter painter(&shape);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(devicePixelRatio, devicePixelRatio);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(card.translated(0, offsetY), cornerRadius, cornerRadius);
  }
  std::vector<float> alpha(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y) {
    const uchar* row = shape.constScanLine(y);
    for (int x = 0; x < width; ++x)
      alpha[static_cast<std::size_t>(y * width + x)] = row[x];
  }
  // Three box passes each way come close to a Gaussian whose spread is half the radius.
  const int half = std::max(1, static_cast<int>(std::lround(radius * devicePixelRatio / 3.0)));
  for (int pass = 0; pass < 3; ++pass) {
    boxBlur(alpha, width, height, half, true);
    boxBlur(alpha, width, height, half, false);
  }
  QImage shadow(width, height, QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < height; ++y) {
    auto* row = reinterpret_cast<QRgb*>(shadow.scanLine(y));
    for (int x = 0; x < width; ++x) {
      const int a = std::clamp(
          static_cast<int>(std::lround(alpha[static_cast<std::size_t>(y * width + x)] * opacity)),
          0, 255);
      row[x] = qRgba(0, 0, 0, a);
    }
  }
  shadow.setDevicePixelRatio(devicePixelRatio);
  return shadow;
}

}  // namespace brimly
