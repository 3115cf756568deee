#pragma once

#include <QFont>
#include <QString>

class QPaintDevice;

namespace brimly {

// The fonts of a metric cell. Sizes are in device-independent pixels (the design's points), so a
// font is made for the device it is drawn on: its logical DPI turns pixels into Qt's points.
//   label:  9.5, semibold, a rounded face where one is installed, tracking 0.7
//   value:  13, medium, monospaced
//   detail: 9.5, regular, monospaced
struct UsageTypography {
  static constexpr double labelSize = 9.5;
  static constexpr double labelTracking = 0.7;
  static constexpr double valueSize = 13.0;
  static constexpr double detailSize = 9.5;

  QString labelFamily;
  QString monospaceFamily;

  // The families this machine offers: a rounded sans-serif if one is installed, else the default
  // sans-serif; the default fixed-pitch family.
  static UsageTypography system();

  QFont labelFont(const QPaintDevice& device) const;
  QFont valueFont(const QPaintDevice& device) const;
  QFont detailFont(const QPaintDevice& device) const;
};

}  // namespace brimly
