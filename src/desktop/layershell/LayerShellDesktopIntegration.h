#pragma once

#include <memory>

#include "desktop/HoverZoneDesktopIntegration.h"

namespace brimly {

class LayerShellPanel;
class RepeatedMessageFilter;
class WaylandConnection;

// The panel on a Wayland desktop whose compositor has the wlroots layer shell (KDE Plasma 5.27
// and later, sway and the other wlroots desktops). The panel is a surface in the overlay layer,
// drawn through Brimly's own connection to the compositor; its input region is the hover zone,
// and the compositor's enter and leave open and close it. Everything else — the tray icon, the
// control card, the settings and About windows — is Qt's, on whichever platform Qt runs beside it
// (see `platformToRequest`). A compositor that goes away ends Brimly with one line, as an X
// server that dies does.
class LayerShellDesktopIntegration final : public HoverZoneDesktopIntegration {
 public:
  // `route`: the layer shell, and why (said at start). `connection` offers the layer shell
  // (WaylandConnection::offersLayerShell).
  LayerShellDesktopIntegration(HoverRouteChoice route,
                               std::unique_ptr<WaylandConnection> connection);
  ~LayerShellDesktopIntegration() override;

  HoverZonePort* hoverZone() override;
  void prepareOverlay(PanelWindow& window) override;
  // Qt never shows the panel's window: the layer surface does.
  void overlayShown(PanelWindow&) override {}
  void rootViewReplaced(PanelWindow& window) override;

 private:
  // The compositor's enter and leave are watched once the surface is there.
  PointerWatch zoneWatch() const override { return PointerWatch::watching; }

  std::unique_ptr<WaylandConnection> connection_;
  std::unique_ptr<LayerShellPanel> panel_;
  std::unique_ptr<RepeatedMessageFilter> onceSaid_;
};

}  // namespace brimly
