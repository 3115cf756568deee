#include "controlpanel/ControlPanelPlacement.h"

#include <algorithm>

namespace brimly::ControlPanelPlacement {

Rect boundingArea(const std::optional<Rect>& buttonScreenVisibleFrame,
                  const std::optional<Rect>& mainScreenVisibleFrame, const Rect& button) {
  if (buttonScreenVisibleFrame) return *buttonScreenVisibleFrame;
  if (mainScreenVisibleFrame) return *mainScreenVisibleFrame;
  return button;
}

Point cardOrigin(const Rect& button, const Rect& area, const Size& card) {
  double x = button.midX() - 0.5 * card.width;
  x = std::min(x, area.maxX() - card.width - screenMargin);
  if (x <= area.minX() + screenMargin) x = area.minX() + screenMargin;
  double y = button.minY() - card.height;
  // Screen coordinates grow upwards: below the area means under the item of a panel at the bottom,
  // where the card opens upwards if it fits there.
  const bool fitsAbove = button.maxY() + card.height <= area.maxY();
  if (y < area.minY() && fitsAbove) y = button.maxY();
  // An item known only by a click is a guess that may reach into the usable area, or not as far
  // as the panel's edge: the card never covers the panel, nor leaves the area's other side.
  if (card.height <= area.height) y = std::clamp(y, area.minY(), area.maxY() - card.height);
  return {x, y};
}

}  // namespace brimly::ControlPanelPlacement
