#include "usage/views/UsageTypography.h"

#include <QFontDatabase>
#include <QPaintDevice>
#include <QStringList>

namespace brimly {

namespace {

QFont fontOf(const QString& family, double pixels, QFont::Weight weight, const QPaintDevice& device,
             QFont::StyleHint hint) {
  QFont font(family);
  font.setStyleHint(hint);
  font.setWeight(weight);
  const int dpi = device.logicalDpiY() > 0 ? device.logicalDpiY() : 96;
  font.setPointSizeF(pixels * 72.0 / dpi);
  return font;
}

QString roundedFamily() {
  const QStringList families = QFontDatabase::families();
  for (const char* preferred :
       {"SF Pro Rounded", "Arial Rounded MT Bold", "Nunito", "Varela Round", "M PLUS Rounded 1c"}) {
    if (families.contains(QString::fromLatin1(preferred))) return QString::fromLatin1(preferred);
  }
  for (const QString& family : families) {
    if (family.contains(QLatin1String("Rounded"), Qt::CaseInsensitive) &&
        !QFontDatabase::isFixedPitch(family)) {
      return family;
    }
  }
  return {};
}

}  // namespace

UsageTypography UsageTypography::system() {
  QString label = roundedFamily();
  if (label.isEmpty()) label = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
  return {label, QFontDatabase::systemFont(QFontDatabase::FixedFont).family()};
}

QFont UsageTypography::labelFont(const QPaintDevice& device) const {
  QFont font = fontOf(labelFamily, labelSize, QFont::DemiBold, device, QFont::SansSerif);
  font.setLetterSpacing(QFont::AbsoluteSpacing, labelTracking);
  return font;
}

QFont UsageTypography::valueFont(const QPaintDevice& device) const {
  return fontOf(monospaceFamily, valueSize, QFont::Medium, device, QFont::Monospace);
}

QFont UsageTypography::detailFont(const QPaintDevice& device) const {
  return fontOf(monospaceFamily, detailSize, QFont::Normal, device, QFont::Monospace);
}

}  // namespace brimly
