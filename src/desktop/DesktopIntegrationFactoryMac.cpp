#include <QGuiApplication>

#include "desktop/DesktopIntegrationFactory.h"
#include "desktop/macos/MacDesktopIntegration.h"
#include "desktop/none/PlainDesktopIntegration.h"
#include "desktop/tray/TrayStatusItem.h"
#include "platform/macos/MacLoginItem.h"

namespace brimly {

std::optional<std::string> desktopProblem(const std::vector<std::string>&) {
  // The window server is there for every logged-in user; Qt's cocoa platform needs nothing more.
  return std::nullopt;
}

void choosePlatformPlugin(const std::vector<std::string>&) {
  // Cocoa is Qt's only desktop platform here, and its default.
}

std::unique_ptr<DesktopIntegration> makeDesktopIntegration() {
  // A headless platform chosen on purpose (offscreen, minimal) has no AppKit windows to configure.
  if (QGuiApplication::platformName() != "cocoa") {
    return std::make_unique<PlainDesktopIntegration>();
  }
  return std::make_unique<MacDesktopIntegration>();
}

std::unique_ptr<LoginItemPort> makeLoginItem() {
  return makeMacLoginItem();
}

std::unique_ptr<StatusItemPort> makeStatusItem(bool) {
  // Only a headless platform gets here: the menu-bar item is the Mac desktop's own.
  return std::make_unique<TrayStatusItem>();
}

}  // namespace brimly
