#include "ui/WindowFonts.h"

#include <QFontDatabase>
#include <QPaintDevice>
#include <QStringList>
#include <string>

#include "platform/SystemFonts.h"
#include "usage/views/UsageTypography.h"

namespace brimly {
namespace {

QFont sized(const QString& family, const QPaintDevice& device, double size, QFont::Weight weight,
            double tracking) {
  QFont font(family);
  font.setStyleHint(QFont::SansSerif);
  font.setWeight(weight);
  const int dpi = device.logicalDpiY() > 0 ? device.logicalDpiY() : 96;
  font.setPointSizeF(size * 72.0 / dpi);
  if (tracking != 0.0) font.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
  return font;
}

}  // namespace

QString windowFamily() {
  static const QString family = [] {
    const QStringList installed = QFontDatabase::families();
    for (const std::string& wanted : windowFamilies()) {
      const QString name = QString::fromStdString(wanted);
      if (installed.contains(name)) return name;
    }
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
  }();
  return family;
}

QFont windowFont(const QPaintDevice& device, double size, QFont::Weight weight, double tracking) {
  return sized(windowFamily(), device, size, weight, tracking);
}

QFont roundedWindowFont(const QPaintDevice& device, double size, QFont::Weight weight,
                        double tracking) {
  static const QString rounded = UsageTypography::systemRoundedFamily();
  return sized(rounded.isEmpty() ? windowFamily() : rounded, device, size, weight, tracking);
}

}  // namespace brimly
