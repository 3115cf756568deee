#include "desktop/HoverRoute.h"

namespace brimly {
namespace {

// Qt's platform is a desktop's own (X11, Wayland), not a headless one.
bool isDesktopPlatform(const std::string& qtPlatform) {
  return qtPlatform == "xcb" || qtPlatform.rfind("wayland", 0) == 0;
}

}  // namespace

HoverRouteChoice chooseHoverRoute(const HoverRouteFacts& facts) {
  if (!isDesktopPlatform(facts.qtPlatform)) return {HoverRoute::none, std::nullopt};
  if (facts.layerShell) {
    return {HoverRoute::layerShell,
            "Brimly: hover through the Wayland layer shell (the compositor offers "
            "zwlr_layer_shell_v1)"};
  }
  if (facts.qtPlatform == "xcb") {
    if (facts.waylandSession) {
      return {HoverRoute::x11RawMotion,
              "Brimly: hover through X11 pointer motion under XWayland (the Wayland compositor "
              "offers no layer shell)"};
    }
    return {HoverRoute::x11RawMotion, "Brimly: hover through X11 pointer motion (an X11 session)"};
  }
  return {HoverRoute::none, std::nullopt};
}

}  // namespace brimly
