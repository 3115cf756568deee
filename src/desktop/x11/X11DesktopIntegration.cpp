#include "desktop/x11/X11DesktopIntegration.h"

#include <utility>

#include "desktop/HoverNotice.h"
#include "desktop/PointerMapping.h"
#include "desktop/QtScreenPort.h"
#include "desktop/x11/PanelShapeMask.h"
#include "panel/views/PanelWindow.h"
#include "platform/x11/X11CompositorWatch.h"
#include "platform/x11/X11Desktop.h"
#include "platform/x11/X11PointerPort.h"

namespace brimly {
namespace {

PanelShapeMask::Fit fitFor(bool compositorPresent) {
  return compositorPresent ? PanelShapeMask::Fit::withEdge : PanelShapeMask::Fit::exact;
}

// The server's pointer pixels as a point of the desktop the screen port describes.
std::optional<Point> toDesktopPoint(Point rootPixels) {
  const QPointF logical = logicalFromNative(QPointF(rootPixels.x, rootPixels.y), qtScreenScales());
  return QtScreenPort::desktopCoordinates().toBottomLeft(Point{logical.x(), logical.y()});
}

}  // namespace

X11DesktopIntegration::X11DesktopIntegration(HoverRouteChoice route)
    : TrayDesktopIntegration(/*pointerReadable=*/true),
      route_(std::move(route)),
      pointer_(std::make_unique<X11PointerPort>(toDesktopPoint)),
      desktop_(std::make_unique<X11Desktop>()),
      compositor_(std::make_unique<X11CompositorWatch>()) {}

X11DesktopIntegration::~X11DesktopIntegration() = default;

PointerPort& X11DesktopIntegration::pointer() {
  return *pointer_;
}

void X11DesktopIntegration::prepareOverlay(PanelWindow& window) {
  // The hints go on the native window before it is mapped, so the window manager sees a dock
  // from the start.
  desktop_->markAsOverlay(static_cast<std::uint32_t>(window.winId()));
  // Cut to shape from the first frame, and kept cut when a compositor comes or goes: the switch
  // only changes how closely the cut follows the card.
  compositor_->start([this](bool present) {
    if (mask_) mask_->setFit(fitFor(present));
    if (translucencyChanged_) translucencyChanged_();
  });
  mask_ = std::make_unique<PanelShapeMask>(window, fitFor(compositorPresent()));
}

void X11DesktopIntegration::overlayShown(PanelWindow& window) {
  // Without XFixes nothing reports a compositor's coming or going: look again at each showing.
  if (mask_) mask_->setFit(fitFor(compositorPresent()));
  window.raise();
}

void X11DesktopIntegration::rootViewReplaced(PanelWindow&) {
  if (mask_) mask_->follow();
}

bool X11DesktopIntegration::supportsTranslucency() const {
  return compositorPresent();
}

void X11DesktopIntegration::followTranslucency(std::function<void()> onChange) {
  translucencyChanged_ = std::move(onChange);
}

bool X11DesktopIntegration::compositorPresent() const {
  return compositor_->isFollowing() ? compositor_->isPresent() : compositor_->refresh();
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
  return brimly::hoverNotice(route_, watch);
}

}  // namespace brimly
