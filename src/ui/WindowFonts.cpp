#include "ui/WindowFonts.h"

#include <QFontDatabase>
#include <QPaintDevice>

#include "usage/views/UsageTypography.h"

namespace brimly {
namespace {

QFont sized(QFont font, const QPaintDevice& device, double size, QFont::Weight weight,
            double tracking) {
  font.setWeight(weight);
  const int dpi = device.logicalDpiY() > 0 ? device.logicalDpiY() : 96;
  font.setPointSizeF(size * 72.0 / dpi);
  if (tracking != 0.0) font.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
  return font;
}

}  // namespace

QFont windowFont(const QPaintDevice& device, double size, QFont::Weight weight, double tracking) {
  return sized(QFontDatabase::systemFont(QFontDatabase::GeneralFont), device, size, weight,
               tracking);
}

QFont roundedWindowFont(const QPaintDevice& device, double size, QFont::Weight weight,
                        double tracking) {
  // Looked up once: the installed families do not change while Brimly runs.
  static const QString family = UsageTypography::system().labelFamily;
  QFont font(family);
  font.setStyleHint(QFont::SansSerif);
  return sized(font, device, size, weight, tracking);
}

}  // namespace brimly
