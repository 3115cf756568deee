#pragma once

#include <string>

#include "desktop/DisplayCheck.h"

namespace brimly {

// How the pointer opens the panel on the desktop Brimly finds at start.
enum class HoverRoute {
  // A Wayland compositor with the wlroots layer shell (KDE Plasma 5.27+, sway and the other
  // wlroots desktops): the panel is a layer surface of Brimly's own, and the compositor's enter and
  // leave on its input region tell when the pointer is near.
  layerShell,
  // A Wayland session without a layer shell (GNOME): the panel stays an X11 window under
  // XWayland, taken out of the window manager's hands, and X Enter and Leave on its input shape —
  // the closed outline's rectangle, the open card — tell when the pointer is near.
  xwaylandHotZone,
  // An X11 session: raw pointer motion on the root window, seen over every window.
  x11RawMotion,
  // Nothing follows the pointer: Qt runs on Wayland without X11 and there is no layer shell, or on
  // a headless platform chosen on purpose (offscreen, minimal, vnc).
  none,
};

// What is known about the session once Qt runs.
struct HoverRouteFacts {
  std::string qtPlatform;   // the platform Qt runs on: "xcb", "wayland", "offscreen"…
  std::string sessionType;  // XDG_SESSION_TYPE
  WaylandAnswer wayland = WaylandAnswer::silent;  // what the compositor on WAYLAND_DISPLAY said
  bool layerShellPanel = false;  // this build can draw the panel as a layer surface
};

struct HoverRouteChoice {
  HoverRoute route = HoverRoute::none;
  // Why, in a few words for the line said at start; empty for a headless platform, which needs
  // no word.
  std::string reason;

  bool operator==(const HoverRouteChoice&) const = default;
};

// The route, in this order: none on a headless platform; the layer shell wherever the compositor
// offers it and this build can draw there, whatever Qt runs on beside it; where Qt runs on X11,
// the XWayland hot zone in a Wayland session (a compositor answered, or XDG_SESSION_TYPE says so
// while none can be asked: a sandbox that lets Brimly reach only X11), raw motion otherwise;
// none where Qt runs on Wayland without a layer shell.
HoverRouteChoice chooseHoverRoute(const HoverRouteFacts& facts);

}  // namespace brimly
