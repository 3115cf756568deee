#pragma once

#include <functional>
#include <optional>
#include <string>

namespace brimly {

// What the environment says about the display, read before any window system is touched: Qt
// ends the process with a core dump when it cannot open one.
struct DisplayEnvironment {
  std::string qpaPlatform;     // QT_QPA_PLATFORM, as the user set it
  std::string display;         // DISPLAY
  std::string waylandDisplay;  // WAYLAND_DISPLAY
};

// The one line printed when there is nothing to show the panel on.
inline constexpr const char* kNoDisplayMessage =
    "Brimly: no display to show the panel on (DISPLAY is not set or cannot be opened); "
    "run \"brimly --audit\" for the readings as text.";
// The exit status that goes with it, so that scripts can tell it from other failures.
inline constexpr int kNoDisplayExitStatus = 3;

// True when Qt will find a display. `x11Opens` is asked only when the answer depends on
// reaching the X server named by DISPLAY.
bool displayAvailable(const DisplayEnvironment& environment, const std::function<bool()>& x11Opens);

// The Qt platform to ask for, when the user has not chosen one: X11 wherever an X server is at
// hand, also under Wayland through XWayland, because only X11 lets a window place itself at the
// top of the screen and lets a program follow the pointer.
std::optional<std::string> platformToRequest(const DisplayEnvironment& environment);

}  // namespace brimly
