#include "desktop/tray/TrayDesktopIntegration.h"

#include <QWidget>

#include "desktop/DesktopIntegrationFactory.h"

namespace brimly {

TrayDesktopIntegration::TrayDesktopIntegration() : loginItem_(makeLoginItem()) {}

void TrayDesktopIntegration::controlCardShown(QWidget& card) {
  // A pop-up takes the pointer and the keyboard itself; raising keeps it above a full-screen
  // window.
  card.raise();
  card.activateWindow();
}

}  // namespace brimly
