#pragma once

#include <functional>
#include <optional>

#include "core/Geometry.h"

namespace brimly {

// Watches mouse-down clicks (left and right) that go to other applications, so that the control
// card can close when the user clicks anywhere else. Clicks into the application's own windows
// are not reported. Where the desktop shows a program no click outside its windows (Wayland), the
// moment the application loses the keyboard to another stands for such a click. Main thread only.
class OutsideClickMonitorPort {
 public:
  using Token = int;

  virtual ~OutsideClickMonitorPort() = default;
  // Installs a monitor; `onClick` runs on the main thread with the pointer's global
  // bottom-left-origin position at the click, or nothing where the desktop does not tell it.
  // Nothing when the system refused to make one.
  virtual std::optional<Token> install(
      std::function<void(std::optional<Point> pointer)> onClick) = 0;
  // Removes the monitor `token` names; no call of its `onClick` follows.
  virtual void remove(Token token) = 0;
};

}  // namespace brimly
