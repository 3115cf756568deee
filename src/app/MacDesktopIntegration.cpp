#include "app/MacDesktopIntegration.h"

#include <cstdint>

#include "panel/views/PanelWindow.h"
#include "platform/PointerPort.h"
#include "platform/ScreenPort.h"
#include "platform/macos/MacApplication.h"
#include "platform/macos/MacPointerPort.h"
#include "platform/macos/MacScreenPort.h"

namespace brimly {
namespace {

void configure(PanelWindow& window) {
  // winId() makes the native window if Qt has none yet; without one there is nothing to set.
  configureOverlayPanel(static_cast<std::uintptr_t>(window.winId()));
}

}  // namespace

MacDesktopIntegration::MacDesktopIntegration()
    : screens_(makeMacScreenPort()), pointer_(makeMacPointerPort()) {}

MacDesktopIntegration::~MacDesktopIntegration() = default;

const ScreenPort& MacDesktopIntegration::screens() const {
  return *screens_;
}

PointerPort& MacDesktopIntegration::pointer() {
  return *pointer_;
}

void MacDesktopIntegration::prepareOverlay(PanelWindow& window) {
  configure(window);
}

void MacDesktopIntegration::overlayShown(PanelWindow& window) {
  // Showing may recreate the native window and reapplies Qt's level, shadow and mouse handling.
  configure(window);
  // Not QWidget::raise(): on macOS that also activates the application, taking the keyboard
  // from whatever the user was typing into.
  orderOverlayFront(static_cast<std::uintptr_t>(window.winId()));
}

void MacDesktopIntegration::rootViewReplaced(PanelWindow&) {
  // The window stays the same native window and keeps its settings; translucency is Qt's.
}

std::optional<std::string> MacDesktopIntegration::hoverNotice() const {
  // Mouse-movement monitors need no permission on macOS: hovering always works.
  return std::nullopt;
}

}  // namespace brimly
