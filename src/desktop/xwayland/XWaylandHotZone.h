#pragma once

#include <QRect>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desktop/HoverNotice.h"
#include "panel/RootViewMetrics.h"
#include "platform/HoverZonePort.h"

namespace brimly {

class PanelWindow;
class X11InputZone;
class XWaylandZoneRefresh;

// The panel's X11 window under XWayland as the place where the pointer is watched. A Wayland
// compositor shows an X11 program the pointer only while it is over one of the program's windows,
// so the window takes the pointer over the zone the tracker asks for — the closed outline's
// rectangle, the open card, or nothing while pinned — and X Enter and Leave on it say when the
// pointer is near. The window is taken out of the window manager's hands (override-redirect),
// which keeps it above the desktop's own top bar and above full-screen windows.
//
// XWayland keeps the last position it saw over one of its windows while the pointer is over
// Wayland windows; a window first mapped with a larger input region over that stale position would
// get an Enter at once, then a Leave, over and over. The zone is therefore on the window before it
// is first mapped, and the window is never mapped with another.
//
// GNOME's compositor forgets the zone at the window's next frame unless it has seen it change
// (see XWaylandZoneRefresh): each time the zone is set anew, the pixel at the window's
// bottom-right corner (transparent, beside the card's rounded corner) joins it or leaves it.
class XWaylandHotZone final : public HoverZonePort {
 public:
  // An empty display name means $DISPLAY.
  explicit XWaylandHotZone(std::string displayName = {});
  ~XWaylandHotZone() override;

  // The panel's window, created and not yet mapped: takes it out of the window manager's hands
  // and gives it the zone asked for so far (the closed outline until the tracker says otherwise).
  // `window` must outlive this object.
  void attach(PanelWindow& window);
  // The window's root view was replaced, or the window resized: the zone follows its card.
  void follow();
  // How watching came out (a display that cannot be reached, one without input shapes).
  PointerWatch watch() const;

  // Reports only once `attach` has found a window.
  bool startWatching(std::function<void(bool inside)> onChange) override;
  void stopWatching() override;
  void setZone(Zone zone) override;

  // The window's input region for `zone`: the hot zone of a root view `viewWidth` points wide, in
  // the window's device pixels (`devicePixelRatio` of them a point), covering every pixel the zone
  // touches. No zone is the pixel just above and left of the window, which no pointer over the
  // window is ever in (an empty region would do for X, but is the whole window to some
  // compositors).
  static std::vector<QRect> inputRegion(Zone zone, const RootViewMetrics& metrics, int viewWidth,
                                        double devicePixelRatio);

 private:
  void apply();
  // Sets the zone anew, with or without the corner pixel, whichever it had not.
  void announce();

  std::string displayName_;
  PanelWindow* window_ = nullptr;
  std::unique_ptr<X11InputZone> native_;
  std::unique_ptr<XWaylandZoneRefresh> refresh_;
  Zone zone_ = Zone::closedOutline;
  bool withCornerPixel_ = false;
};

}  // namespace brimly
