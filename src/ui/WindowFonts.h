#pragma once

#include <QFont>
#include <QString>

class QPaintDevice;

namespace brimly {

// The family every text of Brimly's windows is set in: the first installed of the system's
// `windowFamilies` (Inter on Linux), else the system's interface font (macOS's own, or whatever a
// Linux desktop without Inter uses). Looked up once: the installed families do not change while
// Brimly runs. Needs a QGuiApplication.
QString windowFamily();

// The fonts of Brimly's windows. Sizes are the design's points, which are device-independent
// pixels, so a font is made for the device it is drawn on. `tracking` widens the letter spacing by
// that many points.
QFont windowFont(const QPaintDevice& device, double size, QFont::Weight weight,
                 double tracking = 0.0);
// The same in the rounded design of the windows' face, for the metric rows' titles: the system
// font's own rounded design on macOS (made to sit beside it: the same x-height and widths). Where
// the windows' family has no rounded design (Linux), the windows' family itself, so that a window
// speaks in one voice rather than beside a rounded family of other proportions.
QFont roundedWindowFont(const QPaintDevice& device, double size, QFont::Weight weight,
                        double tracking = 0.0);

}  // namespace brimly
