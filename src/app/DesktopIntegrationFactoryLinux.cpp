#include <QGuiApplication>

#include "app/DesktopIntegrationFactory.h"
#include "app/PlainDesktopIntegration.h"
#include "app/X11DesktopIntegration.h"

namespace brimly {

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
