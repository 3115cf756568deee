#include <QGuiApplication>
#include <cstdlib>

#include "app/DesktopIntegrationFactory.h"
#include "app/DisplayCheck.h"
#include "app/PlainDesktopIntegration.h"
#include "app/X11DesktopIntegration.h"
#include "platform/x11/X11Desktop.h"

namespace brimly {
namespace {

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

DisplayEnvironment displayEnvironment() {
  return DisplayEnvironment{variable("QT_QPA_PLATFORM"), variable("DISPLAY"),
                            variable("WAYLAND_DISPLAY")};
}

}  // namespace

bool desktopAvailable() {
  return displayAvailable(displayEnvironment(), [] { return X11Desktop().isConnected(); });
}

void choosePlatformPlugin() {
  if (const std::optional<std::string> platform = platformToRequest(displayEnvironment())) {
    qputenv("QT_QPA_PLATFORM", QByteArray::fromStdString(*platform));
  }
}

std::unique_ptr<DesktopIntegration> makeDesktopIntegration() {
  const QString platform = QGuiApplication::platformName();
  const bool waylandSession = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
                              qEnvironmentVariable("XDG_SESSION_TYPE") == "wayland";
  if (platform == "xcb") return std::make_unique<X11DesktopIntegration>(waylandSession);
  // A native Wayland desktop lets no program follow the pointer; say so. Headless platforms
  // (offscreen, minimal, vnc) were chosen on purpose and need no word.
  return std::make_unique<PlainDesktopIntegration>(platform.startsWith("wayland"));
}

}  // namespace brimly
