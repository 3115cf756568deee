#include "desktop/xwayland/XWaylandDesktopIntegration.h"

#include "panel/views/PanelWindow.h"

namespace brimly {

void XWaylandDesktopIntegration::overlayShown(PanelWindow& window) {
  // Override-redirect windows stack where they are put: on top.
  window.raise();
}

}  // namespace brimly
