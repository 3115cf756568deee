#pragma once

#include <QFont>

class QPaintDevice;

namespace brimly {

// The fonts of Brimly's windows. Sizes are the design's points, which are device-independent
// pixels, so a font is made for the device it is drawn on. `tracking` widens the letter spacing by
// that many points.
QFont windowFont(const QPaintDevice& device, double size, QFont::Weight weight,
                 double tracking = 0.0);
// The same in the rounded face of the panel's metric labels: the system's rounded design on
// macOS, an installed rounded family elsewhere (see UsageTypography::system).
QFont roundedWindowFont(const QPaintDevice& device, double size, QFont::Weight weight,
                        double tracking = 0.0);

}  // namespace brimly
