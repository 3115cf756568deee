#pragma once

#include <QFont>
#include <QString>

class QPaintDevice;

namespace brimly {

// The fonts of a metric cell. Sizes are in device-independent pixels (the design's points), so a
// font is made for the device it is drawn on: its logical DPI turns pixels into Qt's points.
//   label:  9.5, semibold, a rounded face where one is installed, tracking 0.7
//   value:  13, medium, monospaced (its em dash in the label's face: see `dashFont`)
//   detail: 9.5, regular, monospaced
// A family without a semibold or medium face is drawn at the nearest lighter weight it has (see
// `of`): a synthesised or borrowed bold is far heavier than the design. A larger panel draws
// every size (and the tracking) `scale` times larger.
struct UsageTypography {
  static constexpr double labelSize = 9.5;
  static constexpr double labelTracking = 0.7;
  static constexpr double valueSize = 13.0;
  static constexpr double detailSize = 9.5;
  // The header row's height, in whole points so that the bars fall on whole pixels: the value's
  // line as the design's faces set it (1.2 times the size). Faces set their lines differently
  // (JetBrains Mono's is 1.32 times the size), and a taller row would push the grid out of the
  // open card, so the row does not follow the face: the texts are centred in it.
  static constexpr double headerHeight = 16.0;

  QString labelFamily;
  QString monospaceFamily;
  // Semibold, medium and regular, or the faces of the families that stand in for them.
  QFont::Weight labelWeight = QFont::DemiBold;
  QFont::Weight valueWeight = QFont::Medium;
  QFont::Weight detailWeight = QFont::Normal;
  QFont::Weight dashWeight = QFont::Medium;  // of `labelFamily`
  double scale = 1.0;                        // what the sizes above are multiplied by

  // The same faces, every size `scale` times its usual one.
  UsageTypography scaledTo(double scale) const;

  // `label` and `monospace`, each weight the heaviest no heavier than asked that the family has a
  // face of (looked up here once: fonts are made on every paint). `labelWeight` stands in for
  // semibold in a family whose own weights are drawn lighter or heavier than usual.
  static UsageTypography of(const QString& label, const QString& monospace,
                            QFont::Weight labelWeight = QFont::DemiBold);
  // The families this machine offers: for labels the system's own rounded design (macOS's system
  // font in its rounded design, as the platform hands its file over), else the first installed of
  // Quicksand (fonts-quicksand) or another rounded sans-serif, Inter (fonts-inter), then the
  // default sans-serif; for values and details the first installed of SF Mono, JetBrains Mono
  // (fonts-jetbrains-mono), then the default fixed-pitch family.
  static UsageTypography system();
  // The family of the system's own rounded design (macOS), looked up once; empty where the system
  // has none (Linux).
  static QString systemRoundedFamily();
  // The same, with `systemRounded` as the system's rounded design (empty where there is none).
  static UsageTypography preferring(const QString& systemRounded);
  // The family of the font in `file`, added to Qt's fonts once; empty when Qt cannot read it.
  static QString familyOfFontFile(const QString& file);

  QFont labelFont(const QPaintDevice& device) const;
  QFont valueFont(const QPaintDevice& device) const;
  QFont detailFont(const QPaintDevice& device) const;
  // The placeholder dash at the value's size and weight, in the label's proportional face: a
  // monospaced em dash is one narrow cell wide and reads as a hyphen.
  QFont dashFont(const QPaintDevice& device) const;
};

}  // namespace brimly
