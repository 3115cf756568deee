#pragma once

#include <memory>

#include "desktop/DesktopIntegration.h"

namespace brimly {

// The panel on macOS: the screens as AppKit describes them (safe-area insets and the strips
// beside the camera housing included), the pointer through AppKit's event monitors, and the
// panel's native window raised above the menu bar, on every space and letting every click
// through. Qt resets part of that whenever it shows the window, so it is applied again after
// each show. The control card hangs from a status item in the menu bar; it is a pop-up level
// window that becomes key (for Escape), and clicks into other applications, seen by a global
// event monitor, close it. The login item is the system's service management.
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

  StatusItemPort& statusItem() override;
  OutsideClickMonitorPort& outsideClicks() override;
  LoginItemPort& loginItem() override;
  bool controlCardGrabsPointer() const override;
  bool supportsTranslucency() const override;
  void prepareControlCard(QWidget& card) override;
  void controlCardShown(QWidget& card) override;
  void titledWindowReady(QWidget& window) override;
  bool startWindowDrag(QWidget& window) override;

 private:
  std::unique_ptr<ScreenPort> screens_;
  std::unique_ptr<PointerPort> pointer_;
  std::unique_ptr<StatusItemPort> statusItem_;
  std::unique_ptr<OutsideClickMonitorPort> outsideClicks_;
  std::unique_ptr<LoginItemPort> loginItem_;
};

}  // namespace brimly
