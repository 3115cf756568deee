#pragma once

#include <optional>
#include <string>

namespace brimly {

class PanelWindow;
class PointerPort;
class ScreenPort;

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
  // Called once the panel's native window exists and before it is first shown.
  virtual void prepareOverlay(PanelWindow& window) = 0;
  // Called right after every show() of the panel: a desktop may reset native window settings, or
  // even replace the native window, while showing it. Brings the panel to the front without
  // activating the application.
  virtual void overlayShown(PanelWindow& window) = 0;
  // Called after the panel was given a new root view (the screens changed).
  virtual void rootViewReplaced(PanelWindow& window) = 0;
  // The one line to print about hovering, if any; asked once, after the tracker has started.
  virtual std::optional<std::string> hoverNotice() const = 0;
};

}  // namespace brimly
