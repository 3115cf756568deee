#pragma once

#include <QColor>

#include "usage/Color.h"

namespace brimly {

// The colour as Qt draws it: in sRGB (Display P3 colours are converted), with its opacity.
inline QColor toQColor(const Color& color) {
  const Color srgb = color.inSRGB();
  return QColor::fromRgbF(static_cast<float>(srgb.red), static_cast<float>(srgb.green),
                          static_cast<float>(srgb.blue), static_cast<float>(srgb.opacity));
}

}  // namespace brimly
