#pragma once

#include <memory>

#include "app/DesktopIntegration.h"
#include "app/QtScreenPort.h"

namespace brimly {

class PanelShapeMask;
class X11Desktop;
class X11PointerPort;

// The panel on an X11 desktop (also XWayland): the pointer is followed through XInput 2 raw
// motion, the panel becomes a dock window kept above, on every desktop and out of task bars, and
// without a compositing manager it is cut to the card's shape.
class X11DesktopIntegration final : public DesktopIntegration {
 public:
  // `waylandSession`: the desktop is a Wayland session seen through XWayland.
  explicit X11DesktopIntegration(bool waylandSession);
  ~X11DesktopIntegration() override;

  const ScreenPort& screens() const override { return screens_; }
  PointerPort& pointer() override;
  void prepareOverlay(PanelWindow& window) override;
  void overlayShown(PanelWindow& window) override;
  void rootViewReplaced(PanelWindow& window) override;
  std::optional<std::string> hoverNotice() const override;

 private:
  bool waylandSession_;
  QtScreenPort screens_;
  std::unique_ptr<X11PointerPort> pointer_;
  std::unique_ptr<X11Desktop> desktop_;
  std::unique_ptr<PanelShapeMask> mask_;
};

}  // namespace brimly
