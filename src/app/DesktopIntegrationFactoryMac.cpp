#include <QGuiApplication>

#include "app/DesktopIntegrationFactory.h"
#include "app/MacDesktopIntegration.h"
#include "app/PlainDesktopIntegration.h"

namespace brimly {

bool desktopAvailable() {
  // The window server is there for every logged-in user; Qt's cocoa platform needs nothing more.
  return true;
}

void choosePlatformPlugin() {
  // Cocoa is Qt's only desktop platform here, and its default.
}

std::unique_ptr<DesktopIntegration> makeDesktopIntegration() {
  // A headless platform chosen on purpose (offscreen, minimal) has no AppKit windows to configure.
  if (QGuiApplication::platformName() != "cocoa") {
    return std::make_unique<PlainDesktopIntegration>(false);
  }
  return std::make_unique<MacDesktopIntegration>();
}

}  // namespace brimly
