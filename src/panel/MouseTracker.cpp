#include "panel/MouseTracker.h"

#include <cmath>
#include <utility>

namespace brimly {

MouseTracker::MouseTracker(PointerPort& pointer, const ScreenPort& screens, HoverZonePort* zone)
    : pointer_(pointer),
      screens_(screens),
      zone_(zone),
      self_(std::make_shared<MouseTracker*>(this)) {}

MouseTracker::~MouseTracker() = default;

void MouseTracker::setOnChange(std::function<void(bool)> onChange) {
  onChange_ = std::move(onChange);
}

void MouseTracker::setGeometry(const TrackerGeometry& geometry) {
  geometry_ = geometry;
}

void MouseTracker::start() {
  if (watching_) return;
  std::weak_ptr<MouseTracker*> weak = self_;
  if (zone_) {
    watching_ = zone_->startWatching([weak](bool inside) {
      if (auto self = weak.lock()) (*self)->zoneReported(inside);
    });
    applyZone();
    return;
  }
  watching_ = pointer_.startWatching([weak] {
    if (auto self = weak.lock()) (*self)->evaluate();
  });
  evaluate();
}

void MouseTracker::stop() {
  if (!watching_) return;
  if (zone_) {
    zone_->stopWatching();
  } else {
    pointer_.stopWatching();
  }
  watching_ = false;
}

void MouseTracker::setPinned(bool pinned) {
  // Where the pointer is followed everywhere the pin changes nothing here: the proximity rules
  // ignore the pointer while pinned, and ask for it again when released.
  pinned_ = pinned;
  if (!zone_) return;
  if (pinned_) update(false);
  applyZone();
}

HoverZonePort::Zone MouseTracker::zoneFor(bool pinned, bool inside) {
  if (pinned) return HoverZonePort::Zone::none;
  return inside ? HoverZonePort::Zone::openCard : HoverZonePort::Zone::closedOutline;
}

void MouseTracker::zoneReported(bool inside) {
  // A report that comes in just as the zone went away (pinned) is stale.
  if (pinned_) return;
  update(inside);
  applyZone();
}

void MouseTracker::applyZone() {
  if (zone_ && watching_) zone_->setZone(zoneFor(pinned_, isInside_));
}

void MouseTracker::evaluate() {
  if (zone_) return;
  const std::optional<Point> location = pointer_.location();
  if (!location) {
    update(false);
    return;
  }
  std::optional<Rect> frame = geometry_.screenFrame;
  if (!frame) frame = referenceFrame(*location, frame, screens_.screens(), screens_.mainScreen());
  if (!frame) {
    update(false);
    return;
  }
  update(decide(*location, *frame, isInside_, geometry_));
}

bool MouseTracker::decide(Point p, const Rect& frame, bool wasInside,
                          const TrackerGeometry& geometry) {
  const double top = frame.maxY();
  const double mid = frame.midX();
  const double height = wasInside ? geometry.triggerHeightShown : geometry.triggerHeightHidden;
  const double width = wasInside ? geometry.triggerWidthShown : geometry.triggerWidthHidden;
  if (!(top - height <= p.y && p.y <= top)) return false;
  return std::abs(p.x - mid) <= width * 0.5;
}

std::optional<Rect> MouseTracker::referenceFrame(
    Point p, const std::optional<Rect>& screenFrame, const std::vector<ScreenDescription>& screens,
    const std::optional<ScreenDescription>& mainScreen) {
  if (screenFrame) return screenFrame;
  for (const auto& screen : screens) {
    if (screen.frame.contains(p)) return screen.frame;
  }
  if (mainScreen) return mainScreen->frame;
  return std::nullopt;
}

void MouseTracker::update(bool inside) {
  if (inside == isInside_) return;
  isInside_ = inside;
  if (onChange_) {
    // A copy, so that the listener may replace itself while it is being told.
    auto onChange = onChange_;
    onChange(inside);
  }
}

}  // namespace brimly
