#include "desktop/macos/MacDesktopIntegration.h"

#include <QWidget>

#include <cstdint>

#include "panel/views/PanelWindow.h"
#include "platform/LoginItemPort.h"
#include "platform/OutsideClickMonitorPort.h"
#include "platform/PointerPort.h"
#include "platform/ScreenPort.h"
#include "platform/StatusItemPort.h"
#include "platform/macos/MacApplication.h"
#include "platform/macos/MacLoginItem.h"
#include "platform/macos/MacOutsideClickMonitor.h"
#include "platform/macos/MacPointerPort.h"
#include "platform/macos/MacScreenPort.h"
#include "platform/macos/MacStatusItem.h"
#include "usage/Theme.h"

namespace brimly {
namespace {

// winId() makes the native window if Qt has none yet; without one there is nothing to set.
std::uintptr_t nativeId(const QWidget& widget) {
  return static_cast<std::uintptr_t>(widget.winId());
}

void configure(PanelWindow& window) {
  configureOverlayPanel(nativeId(window));
}

}  // namespace

MacDesktopIntegration::MacDesktopIntegration()
    : screens_(makeMacScreenPort()),
      pointer_(makeMacPointerPort()),
      statusItem_(makeMacStatusItem()),
      outsideClicks_(makeMacOutsideClickMonitor()),
      loginItem_(makeMacLoginItem()) {}

MacDesktopIntegration::~MacDesktopIntegration() = default;

const ScreenPort& MacDesktopIntegration::screens() const {
  return *screens_;
}

PointerPort& MacDesktopIntegration::pointer() {
  return *pointer_;
}

void MacDesktopIntegration::prepareOverlay(PanelWindow& window) {
  configure(window);
}

void MacDesktopIntegration::overlayShown(PanelWindow& window) {
  // Showing may recreate the native window and reapplies Qt's level, shadow and mouse handling.
  configure(window);
  // Not QWidget::raise(): on macOS that also activates the application, taking the keyboard
  // from whatever the user was typing into.
  orderOverlayFront(nativeId(window));
}

void MacDesktopIntegration::rootViewReplaced(PanelWindow&) {
  // The window stays the same native window and keeps its settings; translucency is Qt's.
}

std::optional<std::string> MacDesktopIntegration::hoverNotice() const {
  // Mouse-movement monitors need no permission on macOS: hovering always works.
  return std::nullopt;
}

StatusItemPort& MacDesktopIntegration::statusItem() {
  return *statusItem_;
}

OutsideClickMonitorPort& MacDesktopIntegration::outsideClicks() {
  return *outsideClicks_;
}

LoginItemPort& MacDesktopIntegration::loginItem() {
  return *loginItem_;
}

bool MacDesktopIntegration::controlCardGrabsPointer() const {
  // The card is a key window; clicks elsewhere come from the global monitor of outsideClicks().
  return false;
}

bool MacDesktopIntegration::supportsTranslucency() const {
  // The window server always composites.
  return true;
}

void MacDesktopIntegration::prepareControlCard(QWidget& card) {
  configureControlCard(nativeId(card));
}

void MacDesktopIntegration::controlCardShown(QWidget& card) {
  // Showing may recreate the native window and reapplies Qt's level and shadow.
  const std::uintptr_t id = nativeId(card);
  configureControlCard(id);
  // An accessory application's window takes the keyboard (Escape closes the card) only once the
  // application is active.
  activateApplication();
  makeKeyAndFront(id);
}

void MacDesktopIntegration::titledWindowReady(QWidget& window) {
  // The title bar lies transparent over the top of the fixed-size content, on the windows' own
  // dark surface.
  configureTitledWindow(nativeId(window), window.width(), window.height(), Theme::surface.red,
                        Theme::surface.green, Theme::surface.blue);
}

bool MacDesktopIntegration::startWindowDrag(QWidget& window) {
  // Qt's content view takes every click, so AppKit never sees a drag on the window's background
  // by itself: the press being handled is handed to it here.
  return dragWindowFromCurrentMouseDown(nativeId(window));
}

}  // namespace brimly
