#pragma once

#include <memory>

#include "app/DesktopIntegration.h"

namespace brimly {

// The panel on macOS: the screens as AppKit describes them (safe-area insets and the strips
// beside the camera housing included), the pointer through AppKit's event monitors, and the
// panel's native window raised above the menu bar, on every space and letting every click
// through. Qt resets part of that whenever it shows the window, so it is applied again after
// each show.
class MacDesktopIntegration final : public DesktopIntegration {
 public:
  MacDesktopIntegration();
  ~MacDesktopIntegration() override;

  const ScreenPort& screens() const override;
  PointerPort& pointer() override;
  void prepareOverlay(PanelWindow& window) override;
  void overlayShown(PanelWindow& window) override;
  void rootViewReplaced(PanelWindow& window) override;
  std::optional<std::string> hoverNotice() const override;

 private:
  std::unique_ptr<ScreenPort> screens_;
  std::unique_ptr<PointerPort> pointer_;
};

}  // namespace brimly
