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
  if (!tellAboutHover_) return std::nullopt;
  return brimly::hoverNotice(PointerWatch::notX11, true);
}

}  // namespace brimly
