#pragma once

#include "usage/Color.h"
#include "usage/Theme.h"

class QPainter;
class QRectF;
class QWidget;

namespace brimly {

// The ring that marks the control holding the keyboard focus. It shows only while the last thing
// the user did in Brimly was at the keyboard: a key press shows it on the focused control, and a
// press of a mouse button anywhere hides it, so that a control that is clicked never wears one.
// It is drawn in two tones, to stand out from the windows' surface and from an accent fill (a
// switch that is on) alike: a band in the current accent (`Accent`) along its outer edge and a
// line in the surface's colour inside the band.
namespace FocusRing {

inline constexpr Color line = Theme::surface;
inline constexpr double bandWidth = 2.0;
inline constexpr double lineWidth = 1.0;
// How far the ring reaches in from its outer edge.
inline constexpr double depth = bandWidth + lineWidth;

// Starts following the user's input, once for the whole application; every widget that draws the
// ring calls it as it is made.
void watchInput();
// Whether `widget` shows its ring now: it has the keyboard focus and the keyboard was used last.
bool isShown(const QWidget& widget);
// Forgets that the keyboard was used last: for a window opened by a click that only the desktop
// saw (a tray item's), whose first control takes the focus without a ring.
void followPointer();
// Paints the ring inside `outer`, whose corners are rounded by `radius`.
void paint(QPainter& painter, const QRectF& outer, double radius);

}  // namespace FocusRing

}  // namespace brimly
