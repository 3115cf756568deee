#include "desktop/HoverNotice.h"

namespace brimly {

std::optional<std::string> hoverNotice(PointerWatch watch, bool waylandSession) {
  switch (watch) {
    case PointerWatch::notX11:
      return "Brimly: this desktop does not let programs follow the pointer (Wayland without "
             "X11), so hovering will not open the panel; keeping it pinned open still works.";
    case PointerWatch::noDisplay:
      return "Brimly: the X display cannot be opened to follow the pointer, so hovering will not "
             "open the panel; keeping it pinned open still works.";
    case PointerWatch::noXInput2:
      return "Brimly: the X server lacks XInput 2, so the pointer cannot be followed and hovering "
             "will not open the panel; keeping it pinned open still works.";
    case PointerWatch::watching:
      if (waylandSession) {
        return "Brimly: under XWayland the pointer is seen only over X11 windows, so hovering may "
               "not open the panel; keeping it pinned open still works.";
      }
      return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace brimly
