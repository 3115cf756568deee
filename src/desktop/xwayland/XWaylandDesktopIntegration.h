#pragma once

#include <utility>

#include "desktop/HoverRoute.h"
#include "desktop/QtScreenPort.h"
#include "desktop/none/UnwatchedPointerPort.h"
#include "desktop/tray/TrayDesktopIntegration.h"
#include "desktop/xwayland/XWaylandHotZone.h"

namespace brimly {

// The panel in a Wayland session whose compositor offers no layer shell (GNOME): the X11 card
// under XWayland, out of the window manager's hands and above everything, watching the pointer
// over its hot zone (see XWaylandHotZone). The zone takes the clicks that land in it, a pinned
// card takes none, and beside the card every click reaches the window below. The compositor
// blends every XWayland window, so the card keeps its translucent edge and is never cut to shape.
class XWaylandDesktopIntegration final : public TrayDesktopIntegration {
 public:
  // `route`: the hot zone, and why (said at start).
  explicit XWaylandDesktopIntegration(HoverRouteChoice route) : route_(std::move(route)) {}

  const ScreenPort& screens() const override { return screens_; }
  // No position is ever known; the hot zone tells inside and outside.
  PointerPort& pointer() override { return pointer_; }
  HoverZonePort* hoverZone() override { return &zone_; }
  void prepareOverlay(PanelWindow& window) override { zone_.attach(window); }
  void overlayShown(PanelWindow& window) override;
  void rootViewReplaced(PanelWindow&) override { zone_.follow(); }
  std::optional<std::string> hoverNotice() const override;
  bool supportsTranslucency() const override { return true; }

 private:
  HoverRouteChoice route_;
  QtScreenPort screens_;
  UnwatchedPointerPort pointer_;
  XWaylandHotZone zone_;
};

}  // namespace brimly
