#pragma once

#include <memory>

#include "desktop/DesktopIntegration.h"
#include "desktop/tray/PopUpClickMonitor.h"
#include "desktop/tray/TrayStatusItem.h"
#include "platform/LoginItemPort.h"

namespace brimly {

// What a desktop reached through Qt gives the control card: an icon in the system tray, a card
// that is a pop-up and sees the clicks that close it itself, and the system's login item. The
// desktops below Qt (X11, or none at all) add the panel's part.
class TrayDesktopIntegration : public DesktopIntegration {
 public:
  TrayDesktopIntegration();

  StatusItemPort& statusItem() override { return statusItem_; }
  OutsideClickMonitorPort& outsideClicks() override { return outsideClicks_; }
  LoginItemPort& loginItem() override { return *loginItem_; }
  bool controlCardGrabsPointer() const override { return true; }
  void prepareControlCard(QWidget&) override {}
  void controlCardShown(QWidget& card) override;

 private:
  TrayStatusItem statusItem_;
  PopUpClickMonitor outsideClicks_;
  std::unique_ptr<LoginItemPort> loginItem_;
};

}  // namespace brimly
