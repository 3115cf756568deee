#include "desktop/xwayland/XWaylandHotZone.h"

#include <QRectF>
#include <utility>

#include "desktop/HotZone.h"
#include "desktop/xwayland/XWaylandZoneRefresh.h"
#include "panel/views/PanelWindow.h"
#include "panel/views/RootView.h"
#include "platform/x11/X11InputZone.h"

namespace brimly {

XWaylandHotZone::XWaylandHotZone(std::string displayName) : displayName_(std::move(displayName)) {}

XWaylandHotZone::~XWaylandHotZone() = default;

void XWaylandHotZone::attach(PanelWindow& window) {
  window_ = &window;
  native_ =
      std::make_unique<X11InputZone>(static_cast<std::uint32_t>(window.winId()), displayName_);
  native_->bypassWindowManager();
  apply();
  refresh_ = std::make_unique<XWaylandZoneRefresh>(window, [this] { announce(); });
  refresh_->setEnabled(zone_ != Zone::openCard);
}

void XWaylandHotZone::follow() {
  apply();
}

PointerWatch XWaylandHotZone::watch() const {
  if (!native_) return PointerWatch::noDisplay;
  switch (native_->failure()) {
    case X11InputZone::Failure::none:
      return PointerWatch::watching;
    case X11InputZone::Failure::noDisplay:
      return PointerWatch::noDisplay;
    case X11InputZone::Failure::noShape:
      return PointerWatch::noShape;
  }
  return PointerWatch::noDisplay;
}

bool XWaylandHotZone::startWatching(std::function<void(bool inside)> onChange) {
  return native_ && native_->startWatching(std::move(onChange));
}

void XWaylandHotZone::stopWatching() {
  if (native_) native_->stopWatching();
}

void XWaylandHotZone::setZone(Zone zone) {
  if (zone == zone_) return;
  zone_ = zone;
  apply();
  if (window_ == nullptr) return;
  // Every frame gives the open card, the whole window, the pointer anyway.
  refresh_->setEnabled(zone_ != Zone::openCard);
  // A frame after the change shows the compositor the new zone.
  window_->update();
}

void XWaylandHotZone::announce() {
  withCornerPixel_ = !withCornerPixel_;
  apply();
}

void XWaylandHotZone::apply() {
  if (!native_ || window_ == nullptr || window_->rootView() == nullptr) return;
  const RootView& view = *window_->rootView();
  std::vector<QRect> region =
      inputRegion(zone_, view.metrics(), view.width(), window_->devicePixelRatioF());
  if (withCornerPixel_) {
    const QSize pixels = window_->size() * window_->devicePixelRatioF();
    region.emplace_back(pixels.width() - 1, pixels.height() - 1, 1, 1);
  }
  native_->setInputRegion(region);
}

std::vector<QRect> XWaylandHotZone::inputRegion(Zone zone, const RootViewMetrics& metrics,
                                                int viewWidth, double devicePixelRatio) {
  const QRect points = hotZoneRect(zone, metrics, viewWidth);
  if (points.isEmpty()) return {QRect(-1, -1, 1, 1)};
  const QRectF pixels(points.x() * devicePixelRatio, points.y() * devicePixelRatio,
                      points.width() * devicePixelRatio, points.height() * devicePixelRatio);
  return {pixels.toAlignedRect()};
}

}  // namespace brimly
