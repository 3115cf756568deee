#include "desktop/xwayland/XWaylandDesktopIntegration.h"

#include "panel/views/PanelWindow.h"

namespace brimly {

void XWaylandDesktopIntegration::overlayShown(PanelWindow& window) {
  // Override-redirect windows stack where they are put: on top.
  window.raise();
}

std::optional<std::string> XWaylandDesktopIntegration::hoverNotice() const {
  return brimly::hoverNotice(route_, zone_.watch());
}

}  // namespace brimly
