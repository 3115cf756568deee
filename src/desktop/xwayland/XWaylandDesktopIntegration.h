#pragma once

#include <utility>

#include "desktop/HoverZoneDesktopIntegration.h"
#include "desktop/xwayland/XWaylandHotZone.h"

namespace brimly {

// The panel in a Wayland session whose compositor offers no layer shell (GNOME): the X11 card
// under XWayland, out of the window manager's hands and above everything, watching the pointer
// over its hot zone (see XWaylandHotZone). The zone takes the clicks that land in it, a pinned
// card takes none, and beside the card every click reaches the window below. The compositor
// blends every XWayland window, so the card keeps its translucent edge and is never cut to shape.
class XWaylandDesktopIntegration final : public HoverZoneDesktopIntegration {
 public:
  // `route`: the hot zone, and why (said at start).
  explicit XWaylandDesktopIntegration(HoverRouteChoice route)
      : HoverZoneDesktopIntegration(std::move(route)) {}

  HoverZonePort* hoverZone() override { return &zone_; }
  void prepareOverlay(PanelWindow& window) override { zone_.attach(window); }
  void overlayShown(PanelWindow& window) override;
  void rootViewReplaced(PanelWindow&) override { zone_.follow(); }

 private:
  PointerWatch zoneWatch() const override { return zone_.watch(); }

  XWaylandHotZone zone_;
};

}  // namespace brimly
