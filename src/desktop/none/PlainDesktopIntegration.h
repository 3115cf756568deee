#pragma once

#include <utility>

#include "desktop/HoverRoute.h"
#include "desktop/QtScreenPort.h"
#include "desktop/none/UnwatchedPointerPort.h"
#include "desktop/tray/TrayDesktopIntegration.h"

namespace brimly {

// The panel on a desktop Brimly cannot reach below Qt (a native Wayland session, or a headless
// platform chosen on purpose): Qt's window flags are all the overlay gets, and the pointer is not
// followed, so the panel opens only when pinned.
class PlainDesktopIntegration final : public TrayDesktopIntegration {
 public:
  // `route`: why nothing follows the pointer (said at start; a headless platform says nothing).
  explicit PlainDesktopIntegration(HoverRouteChoice route = {}) : route_(std::move(route)) {}

  const ScreenPort& screens() const override { return screens_; }
  PointerPort& pointer() override { return pointer_; }
  void prepareOverlay(PanelWindow&) override {}
  void overlayShown(PanelWindow& window) override;
  void rootViewReplaced(PanelWindow&) override {}
  std::optional<std::string> hoverNotice() const override;

  bool supportsTranslucency() const override;

 private:
  HoverRouteChoice route_;
  QtScreenPort screens_;
  UnwatchedPointerPort pointer_;
};

}  // namespace brimly
