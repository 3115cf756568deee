#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/Geometry.h"

namespace brimly {

// How the status item looks: the first symbol of `symbolNames` that the system has is its image
// (a template image where the menu bar tints it), with `accessibilityDescription` read out for it;
// `toolTip` shows while the pointer rests on it.
struct StatusItemAppearance {
  std::vector<std::string> symbolNames;
  std::string accessibilityDescription;
  std::string toolTip;
};

// The application's item in the menu bar (macOS) or the system tray (Linux). Main thread only.
class StatusItemPort {
 public:
  virtual ~StatusItemPort() = default;

  // Shows the item; `onClick` runs on the main thread for a left and for a right click alike.
  // False when the desktop has nowhere to show it (no system tray); the item may still appear
  // later, when a tray comes up.
  virtual bool install(const StatusItemAppearance& appearance, std::function<void()> onClick) = 0;
  // The item's button on screen, in global bottom-left-origin points; nothing while it is in no
  // window.
  virtual std::optional<Rect> buttonFrame() const = 0;
  // The visible frame (the screen less menu bar, Dock and panels) of the screen the button is on;
  // nothing when the button's window has no screen.
  virtual std::optional<Rect> buttonScreenVisibleFrame() const = 0;
  // The main screen's visible frame; nothing when there is no screen at all.
  virtual std::optional<Rect> mainScreenVisibleFrame() const = 0;
};

}  // namespace brimly
