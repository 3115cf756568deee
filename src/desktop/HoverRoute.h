#pragma once

#include <optional>
#include <string>

namespace brimly {

// How the pointer opens the panel on the desktop Brimly finds at start.
enum class HoverRoute {
  // A Wayland compositor with the wlroots layer shell (KDE Plasma 5.27+, sway and the other wlroots
  // desktops): the panel is a layer surface of Brimly's own, and the compositor's enter and leave
  // on its input region tell when the pointer is near.
  layerShell,
  // An X server, also XWayland: raw pointer motion on the root window.
  x11RawMotion,
  // Nothing follows the pointer: a Wayland compositor without a layer shell where Qt runs without
  // X11, or a headless platform chosen on purpose (offscreen, minimal, vnc).
  none,
};

// What is known about the session once Qt runs.
struct HoverRouteFacts {
  std::string qtPlatform;       // the platform Qt runs on: "xcb", "wayland", "offscreen"…
  bool waylandSession = false;  // WAYLAND_DISPLAY or XDG_SESSION_TYPE says Wayland
  bool layerShell = false;      // a Wayland compositor answered and offers zwlr_layer_shell_v1
};

struct HoverRouteChoice {
  HoverRoute route = HoverRoute::none;
  // The line that says which route runs and why, printed once at start. None for the routes that
  // need no word (a headless platform) or whose desktop integration says it itself (no hover).
  std::optional<std::string> notice;

  bool operator==(const HoverRouteChoice&) const = default;
};

// The route, in this order: none on a headless platform; the layer shell wherever the compositor
// offers it, whatever Qt runs on beside it; X11 raw motion wherever Qt runs on X11 (under XWayland
// it sees the pointer only over X11 windows); none otherwise.
HoverRouteChoice chooseHoverRoute(const HoverRouteFacts& facts);

}  // namespace brimly
