#include "app/X11DesktopIntegration.h"

#include <QGuiApplication>
#include <QScreen>

#include "app/HoverNotice.h"
#include "app/PanelShapeMask.h"
#include "app/PointerMapping.h"
#include "app/QtScreenPort.h"
#include "panel/views/PanelWindow.h"
#include "platform/x11/X11Desktop.h"
#include "platform/x11/X11PointerPort.h"

namespace brimly {
namespace {

// The server's pointer pixels as a point of the desktop the screen port describes.
std::optional<Point> toDesktopPoint(Point rootPixels) {
  QList<ScreenScale> screens;
  for (const QScreen* screen : QGuiApplication::screens()) {
    screens.push_back({screen->geometry(), screen->devicePixelRatio()});
  }
  const QPointF logical = logicalFromNative(QPointF(rootPixels.x, rootPixels.y), screens);
  return QtScreenPort::desktopCoordinates().toBottomLeft(Point{logical.x(), logical.y()});
}

}  // namespace

X11DesktopIntegration::X11DesktopIntegration(bool waylandSession)
    : waylandSession_(waylandSession),
      pointer_(std::make_unique<X11PointerPort>(toDesktopPoint)),
      desktop_(std::make_unique<X11Desktop>()) {}

X11DesktopIntegration::~X11DesktopIntegration() = default;

PointerPort& X11DesktopIntegration::pointer() {
  return *pointer_;
}

void X11DesktopIntegration::prepareOverlay(PanelWindow& window) {
  // The hints go on the native window before it is mapped, so the window manager sees a dock
  // from the start.
  desktop_->markAsOverlay(static_cast<std::uint32_t>(window.winId()));
  if (!desktop_->hasCompositingManager()) mask_ = std::make_unique<PanelShapeMask>(window);
}

void X11DesktopIntegration::overlayShown(PanelWindow& window) {
  window.raise();
}

void X11DesktopIntegration::rootViewReplaced(PanelWindow&) {
  if (mask_) mask_->follow();
}

std::optional<std::string> X11DesktopIntegration::hoverNotice() const {
  PointerWatch watch = PointerWatch::watching;
  switch (pointer_->lastFailure()) {
    case X11PointerPort::Failure::none:
      watch = PointerWatch::watching;
      break;
    case X11PointerPort::Failure::noDisplay:
      watch = PointerWatch::noDisplay;
      break;
    case X11PointerPort::Failure::noXInput2:
      watch = PointerWatch::noXInput2;
      break;
  }
  return brimly::hoverNotice(watch, waylandSession_);
}

}  // namespace brimly
