#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPaintDevice>
#include <QSize>
#include <QString>
#include <cmath>

#include "core/Geometry.h"

namespace brimly {

// A line of `text` in `font` on `device`: its advance and line height, in whole points, so that
// the layouts built from it put texts on whole pixels.
inline Size measuredText(const QFont& font, const QString& text, const QPaintDevice& device) {
  const QFontMetricsF metrics(font, &device);
  return Size{std::ceil(metrics.horizontalAdvance(text)), std::ceil(metrics.height())};
}

inline Size toSize(const QSize& size) {
  return Size{static_cast<double>(size.width()), static_cast<double>(size.height())};
}

}  // namespace brimly
