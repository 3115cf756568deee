#include "desktop/layershell/LayerShellDesktopIntegration.h"

#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>

#include "desktop/layershell/LayerShellPanel.h"
#include "desktop/layershell/RepeatedMessageFilter.h"
#include "desktop/layershell/WaylandConnection.h"

namespace brimly {

LayerShellDesktopIntegration::LayerShellDesktopIntegration(
    HoverRouteChoice route, std::unique_ptr<WaylandConnection> connection)
    : HoverZoneDesktopIntegration(std::move(route)),
      connection_(std::move(connection)),
      panel_(std::make_unique<LayerShellPanel>(*connection_)) {
  // Qt on the same compositor loses it at the same moment, and ends the program with a line of its
  // own, as it does when its X server dies; Brimly adds none (and lets Qt say it only once).
  // Otherwise Brimly says it and ends at once, before XWayland, which goes with the compositor,
  // makes Qt say a second line.
  const bool qtSaysIt = QGuiApplication::platformName().startsWith("wayland");
  if (qtSaysIt) onceSaid_ = std::make_unique<RepeatedMessageFilter>();
  connection_->dispatchFromEventLoop([qtSaysIt](const std::string& reason) {
    if (qtSaysIt) return;
    std::fprintf(stderr, "Brimly: the Wayland compositor went away (%s); quitting\n",
                 reason.c_str());
    std::_Exit(1);
  });
}

LayerShellDesktopIntegration::~LayerShellDesktopIntegration() = default;

HoverZonePort* LayerShellDesktopIntegration::hoverZone() {
  return panel_.get();
}

void LayerShellDesktopIntegration::prepareOverlay(PanelWindow& window) {
  panel_->show(window);
}

void LayerShellDesktopIntegration::rootViewReplaced(PanelWindow&) {
  panel_->rootViewReplaced();
}

}  // namespace brimly
