#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/Geometry.h"

class QWidget;

namespace brimly {

class HoverZonePort;
class LoginItemPort;
class OutsideClickMonitorPort;
class PanelWindow;
class PointerPort;
class ScreenPort;
class StatusItemPort;

// What differs between desktops in bringing the panel up: how the screens are measured, how the
// pointer is followed, and what the overlay window needs beyond its Qt flags to stay above
// everything and out of the way.
class DesktopIntegration {
 public:
  virtual ~DesktopIntegration() = default;
  // The screens the panel is placed on; lives as long as this object.
  virtual const ScreenPort& screens() const = 0;
  // The pointer source for the tracker; lives as long as this object.
  virtual PointerPort& pointer() = 0;
  // Where the desktop shows only whether the pointer is over a zone of the panel (Wayland's enter
  // and leave on a layer surface's input region, X Enter and Leave on the XWayland card's input
  // shape), that zone; the tracker then follows it instead of `pointer`. Null where the pointer
  // is followed everywhere. Lives as long as this object.
  virtual HoverZonePort* hoverZone() { return nullptr; }
  // Called once the panel's native window exists and before it is first shown.
  virtual void prepareOverlay(PanelWindow& window) = 0;
  // Called right after every show() of the panel: a desktop may reset native window settings, or
  // even replace the native window, while showing it. Brings the panel to the front without
  // activating the application.
  virtual void overlayShown(PanelWindow& window) = 0;
  // Called after the panel was given a new root view (the screens changed).
  virtual void rootViewReplaced(PanelWindow& window) = 0;
  // The one line to print about hovering — which route runs and why, or why hovering cannot open
  // the panel — if any; asked once, after the tracker has started.
  virtual std::optional<std::string> hoverNotice() const = 0;

  // The menu-bar or tray item, the monitor of clicks that go elsewhere, and the login item; each
  // lives as long as this object.
  virtual StatusItemPort& statusItem() = 0;
  virtual OutsideClickMonitorPort& outsideClicks() = 0;
  virtual LoginItemPort& loginItem() = 0;
  // Where the control card opens when it is asked for without a click on the item (a second
  // launch where the desktop shows no tray): under the pointer (global bottom-left-origin points),
  // as Qt reads it. Nothing without a screen.
  virtual std::optional<Rect> controlsAnchor() const;
  // Whether the control card is a pop-up that holds the pointer while it is shown, so that it
  // sees the press that closes it (X11), rather than a key window whose outside clicks come from
  // `outsideClicks` (macOS).
  virtual bool controlCardGrabsPointer() const = 0;
  // Whether windows can be translucent now (an X11 desktop without a compositing manager shows
  // transparent pixels black, so the card is then cut to its shape instead).
  virtual bool supportsTranslucency() const = 0;
  // `onChange` runs whenever `supportsTranslucency` may have changed while Brimly runs (a
  // compositing manager started or stopped). Desktops that cannot tell keep it unused.
  virtual void followTranslucency(std::function<void()> onChange) { (void)onChange; }
  // Called once the control card's native window exists and before it is first shown.
  virtual void prepareControlCard(QWidget& card) = 0;
  // Called right after every show() of the card: activates the application and makes the card
  // the key window, in front of everything.
  virtual void controlCardShown(QWidget& card) = 0;
  // Called once a titled window of Brimly's (the settings or the About window) has its native
  // window, before it is first shown, and again right after every show(): what the desktop adds
  // to Qt's window. Desktops whose window manager draws the title bar add nothing.
  virtual void titledWindowReady(QWidget& window) { (void)window; }
  // Asked when a titled window is pressed on its background: starts the window system's own move
  // of it from that press, as its title bar would, and answers whether the system took it. Qt's
  // system move by default (X11 window managers, Wayland compositors).
  virtual bool startWindowDrag(QWidget& window);
};

}  // namespace brimly
