#include "desktop/HoverRoute.h"

namespace brimly {
namespace {

bool isWaylandPlatform(const std::string& qtPlatform) {
  return qtPlatform.rfind("wayland", 0) == 0;
}

}  // namespace

HoverRouteChoice chooseHoverRoute(const HoverRouteFacts& facts) {
  const bool x11 = facts.qtPlatform == "xcb";
  if (!x11 && !isWaylandPlatform(facts.qtPlatform)) return {HoverRoute::none, ""};
  if (facts.wayland == WaylandAnswer::layerShell) {
    return {HoverRoute::layerShell, "the Wayland compositor offers zwlr_layer_shell_v1"};
  }
  if (!x11) return {HoverRoute::none, "Qt runs on Wayland, whose compositor offers no layer shell"};
  if (facts.wayland == WaylandAnswer::plain) {
    return {HoverRoute::xwaylandHotZone,
            "a Wayland session whose compositor offers no layer shell"};
  }
  if (facts.sessionType == "wayland") {
    return {HoverRoute::xwaylandHotZone,
            "a Wayland session (XDG_SESSION_TYPE) whose compositor Brimly cannot reach"};
  }
  return {HoverRoute::x11RawMotion, "an X11 session"};
}

}  // namespace brimly
