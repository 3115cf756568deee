#include "desktop/none/PlainDesktopIntegration.h"

#include "desktop/HoverNotice.h"
#include "panel/views/PanelWindow.h"

namespace brimly {

void PlainDesktopIntegration::overlayShown(PanelWindow& window) {
  window.raise();
}

bool PlainDesktopIntegration::supportsTranslucency() const {
  // Wayland compositors always blend; headless platforms draw into images that keep alpha.
  return true;
}

std::optional<std::string> PlainDesktopIntegration::hoverNotice() const {
  return brimly::hoverNotice(route_, PointerWatch::watching);
}

}  // namespace brimly
