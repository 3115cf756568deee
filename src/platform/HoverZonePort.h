#pragma once

#include <functional>

namespace brimly {

// A desktop that never shows a program where the pointer is, only whether it is over a surface of
// the program's own: Wayland sends enter and leave for the part of a surface that takes input (a
// layer-shell panel's input region), XWayland sends Enter and Leave for an X window's input
// shape. The panel then takes input over a zone of its own, which the tracker sets; the pointer
// counts as near while it is over that zone. The zone takes the clicks that land in it (no
// desktop tells a program about a pointer it lets through); everything else stays click-through.
class HoverZonePort {
 public:
  enum class Zone {
    none,           // no part of the panel takes input (pinned open, it takes no click at all)
    closedOutline,  // the closed card's rectangle at the top centre, where the pointer opens it
    openCard,       // the whole open card, which keeps it open while the pointer is over it
  };

  virtual ~HoverZonePort() = default;
  // Starts reporting; `onChange(inside)` runs on the main thread each time the pointer enters or
  // leaves the zone. False when the desktop cannot report (the listener then gets no calls).
  // Starting twice replaces the listener.
  virtual bool startWatching(std::function<void(bool inside)> onChange) = 0;
  // Stops reporting; no call of `onChange` follows.
  virtual void stopWatching() = 0;
  // The zone from now on. A pointer over the old zone but not over the new one is reported as
  // having left when the desktop says so.
  virtual void setZone(Zone zone) = 0;
};

}  // namespace brimly
