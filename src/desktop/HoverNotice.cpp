#include "desktop/HoverNotice.h"

namespace brimly {
namespace {

std::string hoverIsOff(const std::string& why) {
  return "Brimly: hovering will not open the panel (" + why +
         "); keeping it pinned open still works.";
}

const char* routeName(HoverRoute route) {
  switch (route) {
    case HoverRoute::layerShell:
      return "the Wayland layer shell";
    case HoverRoute::xwaylandHotZone:
      return "an XWayland hot zone at the top centre, which takes the clicks that land in it";
    case HoverRoute::x11RawMotion:
      return "X11 raw pointer motion";
    case HoverRoute::none:
      break;
  }
  return "";
}

}  // namespace

std::optional<std::string> hoverNotice(const HoverRouteChoice& choice, PointerWatch watch) {
  if (choice.route == HoverRoute::none) {
    if (choice.reason.empty()) return std::nullopt;
    return hoverIsOff(choice.reason);
  }
  switch (watch) {
    case PointerWatch::noDisplay:
      return hoverIsOff("the X display cannot be opened to follow the pointer");
    case PointerWatch::noXInput2:
      return hoverIsOff("the X server lacks XInput 2");
    case PointerWatch::noShape:
      return hoverIsOff("the X server lacks input shapes (SHAPE 1.1)");
    case PointerWatch::watching:
      break;
  }
  return "Brimly: hover through " + std::string(routeName(choice.route)) + " (" + choice.reason +
         ").";
}

}  // namespace brimly
