#pragma once

#include <memory>

#include "desktop/DesktopIntegration.h"
#include "desktop/tray/KeyboardLossMonitor.h"
#include "platform/LoginItemPort.h"
#include "platform/StatusItemPort.h"

namespace brimly {

// What a desktop reached through Qt gives the control card: an item in the system tray, a card
// that is a window of its own, closed by a click elsewhere when that click takes the keyboard
// from Brimly (Wayland compositors tell a program nothing else of clicks outside its windows, and
// XWayland tells its X11 programs nothing of clicks on Wayland windows), and the system's login
// item. The desktops below Qt (X11, XWayland, the layer shell, or none at all) add the panel's
// part; X11 makes the card a pop-up.
class TrayDesktopIntegration : public DesktopIntegration {
 public:
  // `pointerReadable`: whether Qt reads the pointer's position anywhere on the desktop (X11).
  explicit TrayDesktopIntegration(bool pointerReadable = false);

  StatusItemPort& statusItem() override { return *statusItem_; }
  OutsideClickMonitorPort& outsideClicks() override { return outsideClicks_; }
  LoginItemPort& loginItem() override { return *loginItem_; }
  // Under the pointer where Qt reads it anywhere (X11), else under the top-right corner.
  std::optional<Rect> controlsAnchor() const override;
  bool controlCardGrabsPointer() const override { return false; }
  void prepareControlCard(QWidget&) override {}
  void controlCardShown(QWidget& card) override;

 private:
  bool pointerReadable_;
  std::unique_ptr<StatusItemPort> statusItem_;
  KeyboardLossMonitor outsideClicks_;
  std::unique_ptr<LoginItemPort> loginItem_;
};

}  // namespace brimly
