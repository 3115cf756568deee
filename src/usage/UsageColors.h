#pragma once

#include "usage/BarPalette.h"
#include "usage/Color.h"

namespace brimly {

// Green below 0.55, amber below 0.8, red from 0.8 on (and for a NaN), in Display P3.
ColorPair usageColors(double fraction);

// The bar colours of a cell: load colours for `usage` and for power on battery, the load colours
// in coarser steps for `heat`, cyan to blue while charging, dimmed grey on mains and when the
// source is unknown.
ColorPair colors(double value, const BarPalette& palette);

}  // namespace brimly
