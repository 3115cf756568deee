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
  const bool layerShellOffered = facts.wayland == WaylandAnswer::layerShell;
  if (layerShellOffered && facts.layerShellPanel) {
    return {HoverRoute::layerShell, "the Wayland compositor offers zwlr_layer_shell_v1"};
  }
  if (x11) {
    if (layerShellOffered) {
      // KWin loses Leave on X windows now and then: a hot zone there could stay open for good.
      return {HoverRoute::x11RawMotion,
              "the Wayland compositor offers a layer shell, which this build cannot draw on; "
              "XWayland shows the pointer only over X11 windows"};
    }
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
  return {HoverRoute::none,
          layerShellOffered ? "Qt runs on Wayland, and this build cannot draw on the compositor's "
                              "layer shell"
                            : "Qt runs on Wayland, whose compositor offers no layer shell"};
}

}  // namespace brimly
