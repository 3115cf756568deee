#pragma once

#include "usage/BarPalette.h"
#include "usage/Color.h"
#include "usage/Theme.h"

namespace brimly {

// Green below 0.55, amber below 0.8, red from 0.8 on (and for a NaN), in Display P3.
ColorPair usageColors(double fraction);

// The bar colours of a cell: load colours for `usage` and for power on battery, the load colours
// in coarser steps for `heat`, cyan to blue while charging, and `dimmedBar` on mains, when the
// power source is unknown and for an `absent` reading.
ColorPair colors(double value, const BarPalette& palette);

// The dimmed grey of a bar that shows no load: the secondary foreground at 55 %.
inline constexpr Color dimmedBar = Theme::secondaryForeground.withOpacity(0.55);

}  // namespace brimly
