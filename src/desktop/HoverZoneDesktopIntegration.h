#pragma once

#include <optional>
#include <string>
#include <utility>

#include "desktop/HoverNotice.h"
#include "desktop/HoverRoute.h"
#include "desktop/QtScreenPort.h"
#include "desktop/none/UnwatchedPointerPort.h"
#include "desktop/tray/TrayDesktopIntegration.h"

namespace brimly {

// What the two Wayland routes share (the layer surface's input region, the XWayland card's input
// shape): no program may read the pointer's position there, so a zone of the panel's own tells
// inside from outside; the screens are Qt's, the compositor blends every window, and the route
// chosen at start is said with how the zone's watch came out.
class HoverZoneDesktopIntegration : public TrayDesktopIntegration {
 public:
  const ScreenPort& screens() const override { return screens_; }
  // No position is ever known; the hover zone tells inside and outside.
  PointerPort& pointer() override { return pointer_; }
  std::optional<std::string> hoverNotice() const override {
    return brimly::hoverNotice(route_, zoneWatch());
  }
  bool supportsTranslucency() const override { return true; }

 protected:
  // `route`: the one that runs, and why (said at start).
  explicit HoverZoneDesktopIntegration(HoverRouteChoice route) : route_(std::move(route)) {}

 private:
  // How the zone's watch came out at launch.
  virtual PointerWatch zoneWatch() const = 0;

  HoverRouteChoice route_;
  QtScreenPort screens_;
  UnwatchedPointerPort pointer_;
};

}  // namespace brimly
