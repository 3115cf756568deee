#pragma once

#include <memory>

#include "desktop/HoverRoute.h"
#include "desktop/QtScreenPort.h"
#include "desktop/tray/PopUpClickMonitor.h"
#include "desktop/tray/TrayDesktopIntegration.h"

namespace brimly {

class PanelShapeMask;
class X11CompositorWatch;
class X11Desktop;
class X11PointerPort;

// The panel on an X11 desktop: the pointer is followed through XInput 2 raw motion, the panel
// becomes a dock window kept above, on every desktop and out of task bars, and its window is cut
// to the card's shape: exactly while no compositing manager runs, with the card's antialiased edge
// while one does. A compositing manager that comes or goes while Brimly runs is followed at once,
// whatever state the panel is in.
class X11DesktopIntegration final : public TrayDesktopIntegration {
 public:
  // `route`: raw motion, and why (said at start).
  explicit X11DesktopIntegration(HoverRouteChoice route);
  ~X11DesktopIntegration() override;

  const ScreenPort& screens() const override { return screens_; }
  PointerPort& pointer() override;
  void prepareOverlay(PanelWindow& window) override;
  void overlayShown(PanelWindow& window) override;
  void rootViewReplaced(PanelWindow& window) override;
  std::optional<std::string> hoverNotice() const override;

  // The card is a pop-up: it holds the pointer while it is shown and sees the press that closes it.
  OutsideClickMonitorPort& outsideClicks() override { return popUpClicks_; }
  bool controlCardGrabsPointer() const override { return true; }
  bool supportsTranslucency() const override;
  void followTranslucency(std::function<void()> onChange) override;

 private:
  // Whether a compositing manager runs now: followed through events where the server reports
  // them, asked for otherwise.
  bool compositorPresent() const;

  HoverRouteChoice route_;
  QtScreenPort screens_;
  std::unique_ptr<X11PointerPort> pointer_;
  std::unique_ptr<X11Desktop> desktop_;
  std::unique_ptr<X11CompositorWatch> compositor_;
  std::function<void()> translucencyChanged_;
  std::unique_ptr<PanelShapeMask> mask_;
  PopUpClickMonitor popUpClicks_;
};

}  // namespace brimly
