#include "app/PlainDesktopIntegration.h"

#include "app/HoverNotice.h"
#include "panel/views/PanelWindow.h"

namespace brimly {

void PlainDesktopIntegration::overlayShown(PanelWindow& window) {
  window.raise();
}

std::optional<std::string> PlainDesktopIntegration::hoverNotice() const {
  if (!tellAboutHover_) return std::nullopt;
  return brimly::hoverNotice(PointerWatch::notX11, true);
}

}  // namespace brimly
