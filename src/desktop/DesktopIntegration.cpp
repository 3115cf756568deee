#include "desktop/DesktopIntegration.h"

#include <QWidget>
#include <QWindow>

namespace brimly {

bool DesktopIntegration::startWindowDrag(QWidget& window) {
  QWindow* native = window.windowHandle();
  return native != nullptr && native->startSystemMove();
}

}  // namespace brimly
