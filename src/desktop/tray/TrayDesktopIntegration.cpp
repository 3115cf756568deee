#include "desktop/tray/TrayDesktopIntegration.h"

#include <QWidget>

#include "desktop/DesktopIntegrationFactory.h"
#include "desktop/tray/ItemFrames.h"

namespace brimly {

TrayDesktopIntegration::TrayDesktopIntegration(bool pointerReadable)
    : pointerReadable_(pointerReadable),
      statusItem_(makeStatusItem(pointerReadable)),
      loginItem_(makeLoginItem()) {}

std::optional<Rect> TrayDesktopIntegration::controlsAnchor() const {
  return ItemFrames::button(ItemFrames::placeWithoutPosition(pointerReadable_));
}

void TrayDesktopIntegration::controlCardShown(QWidget& card) {
  // Raising keeps it above a full-screen window; activating gives it the keyboard, whose loss
  // closes it (and, on X11, a pop-up takes the pointer and the keyboard itself).
  card.raise();
  card.activateWindow();
}

}  // namespace brimly
