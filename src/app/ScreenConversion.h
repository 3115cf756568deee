#pragma once

#include <QList>
#include <QRect>

#include "core/Geometry.h"

namespace brimly {

// Qt places screens from the desktop's top-left corner with y growing downwards; the panel logic
// works from the bottom-left corner with y growing upwards. The flip uses the height of the whole
// desktop, which is also the X root window's height, so screens and pointer agree.

// The lowest edge of any screen: the desktop's height. 0 without screens.
double desktopHeight(const QList<QRect>& screenGeometries);

// A screen rectangle in bottom-left-origin coordinates.
Rect bottomLeftFrame(const QRect& topLeftGeometry, double desktopHeight);

// The strip a desktop's top panel reserves on a screen: how far the usable area starts below the
// screen's top edge. 0 when nothing is reserved or the usable area is not inside the screen.
double topStripThickness(const QRect& geometry, const QRect& availableGeometry);

}  // namespace brimly
