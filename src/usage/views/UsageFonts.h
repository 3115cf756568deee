#pragma once

#include <QFont>

#include "usage/views/UsageTypography.h"

class QPaintDevice;

namespace brimly {

// A typography's fonts, made for one paint device's resolution.
struct UsageFontSet {
  QFont label;
  QFont value;
  QFont detail;
  QFont dash;
};

// The fonts of a typography for the device drawn on, kept between paints: making a font, and
// comparing it with the one a text was shaped in, costs more than drawing the few glyphs of a
// frame, and the panel draws some every second. They are made again when a device of another
// resolution is drawn on.
class UsageFonts {
 public:
  explicit UsageFonts(UsageTypography typography);

  const UsageTypography& typography() const { return typography_; }
  // The fonts for `device`.
  const UsageFontSet& on(const QPaintDevice& device);
  // The logical resolution the fonts were last made for.
  int dpi() const { return dpi_; }

 private:
  UsageTypography typography_;
  int dpi_ = 0;  // the logical resolution `fonts_` were made for; 0 before the first
  UsageFontSet fonts_;
};

}  // namespace brimly
