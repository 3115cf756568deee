#include "desktop/DesktopIntegration.h"

#include <QWidget>
#include <QWindow>

#include "desktop/tray/ItemFrames.h"

namespace brimly {

std::optional<Rect> DesktopIntegration::controlsAnchor() const {
  return ItemFrames::button(ItemFrames::placeWithoutPosition(/*pointerReadable=*/true));
}

bool DesktopIntegration::startWindowDrag(QWidget& window) {
  QWindow* native = window.windowHandle();
  return native != nullptr && native->startSystemMove();
}

}  // namespace brimly
