#include "usage/views/UsageTypography.h"

#include <QFontDatabase>
#include <QPaintDevice>
#include <QStringList>
#include <initializer_list>
#include <optional>
#include <string>

#include "platform/SystemFonts.h"

namespace brimly {

namespace {

// The heaviest weight no heavier than `wanted` that `family` has a face of; `wanted` itself when
// the family is not installed (Qt then substitutes one, whose weights are unknown here).
QFont::Weight availableWeight(const QString& family, QFont::Weight wanted) {
  if (!QFontDatabase::hasFamily(family)) return wanted;
  QFont::Weight best = QFont::Thin;
  bool found = false;
  for (const QString& style : QFontDatabase::styles(family)) {
    if (QFontDatabase::italic(family, style)) continue;
    const auto weight = static_cast<QFont::Weight>(QFontDatabase::weight(family, style));
    if (weight <= wanted && (!found || weight > best)) {
      best = weight;
      found = true;
    }
  }
  return found ? best : wanted;
}

QFont fontOf(const QString& family, double pixels, QFont::Weight weight, const QPaintDevice& device,
             QFont::StyleHint hint) {
  QFont font(family);
  font.setStyleHint(hint);
  font.setWeight(weight);
  const int dpi = device.logicalDpiY() > 0 ? device.logicalDpiY() : 96;
  font.setPointSizeF(pixels * 72.0 / dpi);
  return font;
}

struct Face {
  const char* family;
  QFont::Weight labelWeight = QFont::DemiBold;
};

// The first of `preferred` that is installed; an empty family when none is.
Face firstInstalled(std::initializer_list<Face> preferred) {
  const QStringList families = QFontDatabase::families();
  for (const Face& face : preferred) {
    if (families.contains(QString::fromLatin1(face.family))) return face;
  }
  return {""};
}

}  // namespace

UsageTypography UsageTypography::system() {
  return preferring(systemRoundedFamily());
}

QString UsageTypography::systemRoundedFamily() {
  // Looked up once: the system's fonts do not change while Brimly runs.
  static const QString family = [] {
    const std::optional<std::string> file = roundedSystemFontFile();
    return file ? familyOfFontFile(QString::fromStdString(*file)) : QString();
  }();
  return family;
}

QString UsageTypography::familyOfFontFile(const QString& file) {
  const int id = QFontDatabase::addApplicationFont(file);
  const QStringList families = id < 0 ? QStringList() : QFontDatabase::applicationFontFamilies(id);
  return families.isEmpty() ? QString() : families.first();
}

UsageTypography UsageTypography::preferring(const QString& systemRounded) {
  // Quicksand is drawn light: its bold has the stroke of another face's semibold (and it has no
  // semibold of its own).
  Face label =
      firstInstalled({{"Quicksand", QFont::Bold}, {"M PLUS Rounded 1c"}, {"Nunito"}, {"Inter"}});
  QString labelFamily = QString::fromLatin1(label.family);
  if (!systemRounded.isEmpty()) {
    labelFamily = systemRounded;
    label.labelWeight = QFont::DemiBold;
  }
  if (labelFamily.isEmpty())
    labelFamily = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
  QString monospace = QString::fromLatin1(firstInstalled({{"SF Mono"}, {"JetBrains Mono"}}).family);
  if (monospace.isEmpty()) monospace = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
  return of(labelFamily, monospace, label.labelWeight);
}

UsageTypography UsageTypography::of(const QString& label, const QString& monospace,
                                    QFont::Weight labelWeight) {
  return {label,
          monospace,
          availableWeight(label, labelWeight),
          availableWeight(monospace, QFont::Medium),
          availableWeight(monospace, QFont::Normal),
          availableWeight(label, QFont::Medium)};
}

UsageTypography UsageTypography::scaledTo(double scale) const {
  UsageTypography scaled = *this;
  scaled.scale = scale;
  return scaled;
}

QFont UsageTypography::labelFont(const QPaintDevice& device) const {
  QFont font = fontOf(labelFamily, labelSize * scale, labelWeight, device, QFont::SansSerif);
  font.setLetterSpacing(QFont::AbsoluteSpacing, labelTracking * scale);
  return font;
}

QFont UsageTypography::valueFont(const QPaintDevice& device) const {
  return fontOf(monospaceFamily, valueSize * scale, valueWeight, device, QFont::Monospace);
}

QFont UsageTypography::detailFont(const QPaintDevice& device) const {
  return fontOf(monospaceFamily, detailSize * scale, detailWeight, device, QFont::Monospace);
}

QFont UsageTypography::dashFont(const QPaintDevice& device) const {
  return fontOf(labelFamily, valueSize * scale, dashWeight, device, QFont::SansSerif);
}

}  // namespace brimly
