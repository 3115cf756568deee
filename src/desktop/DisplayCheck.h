#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace brimly {

// What the Wayland compositor named by WAYLAND_DISPLAY answered when Brimly asked it.
enum class WaylandAnswer {
  silent,      // none answers (or none is named)
  plain,       // one answers, without the wlroots layer shell
  layerShell,  // one answers and offers zwlr_layer_shell_v1
};

// The answer for the interfaces a compositor offers; silent for none at all.
WaylandAnswer waylandAnswer(const std::optional<std::vector<std::string>>& offeredInterfaces);

// What the environment and the command line say about the window system, read before any of it
// is touched (Qt ends the process with a core dump when it cannot start the platform it is asked
// for), and what the Wayland compositor answered.
struct DisplayEnvironment {
  std::string qpaPlatform;     // QT_QPA_PLATFORM, as the user set it
  std::string display;         // DISPLAY
  std::string waylandDisplay;  // WAYLAND_DISPLAY
  std::string sessionType;     // XDG_SESSION_TYPE
  std::string sessionDesktop;  // XDG_CURRENT_DESKTOP and XDG_SESSION_DESKTOP, side by side
  std::optional<std::string> platformArgument;  // "-platform <name>" on the command line
  std::optional<std::string> displayArgument;   // "-display <name>" on the command line
  WaylandAnswer wayland = WaylandAnswer::silent;
};

// The one line printed when there is nothing to show the panel on.
inline constexpr const char* kNoDisplayMessage =
    "Brimly: no display to show the panel on (DISPLAY is not set or cannot be opened); "
    "run \"brimly --audit\" for the readings as text.";
// The exit status that goes with it and with every other window system Brimly cannot start, so
// that scripts can tell it from other failures.
inline constexpr int kNoDisplayExitStatus = 3;

// Why Qt could not start the window system it will be asked for, as the one line to print before
// leaving with kNoDisplayExitStatus; nothing when it can. The platforms Qt will try are the
// command line's, else QT_QPA_PLATFORM's, else what platformToRequest() asks for, else Qt's own
// default; the first that works is taken. A platform works when its plugin is among
// `installedPlatforms` (Qt's plugin keys; an empty list means they could not be listed and every
// name is taken on trust) and, for X11, when the X server named by "-display" or DISPLAY answers
// (`x11Opens`, asked only then), for Wayland when a compositor answers on WAYLAND_DISPLAY. Any
// other installed platform (offscreen, vnc, eglfs…) was chosen on purpose and needs no desktop.
std::optional<std::string> startupProblem(
    const DisplayEnvironment& environment, const std::vector<std::string>& installedPlatforms,
    const std::function<bool(const std::string& displayName)>& x11Opens);

// The X display Qt will open: the command line's "-display", else DISPLAY.
std::string x11DisplayName(const DisplayEnvironment& environment);

// The Qt platform to ask for, when the user has not chosen one: X11 wherever an X server is at
// hand, also under Wayland through XWayland, because only X11 lets a window place itself at the
// top of the screen and lets a program follow the pointer.
std::optional<std::string> platformToRequest(const DisplayEnvironment& environment);

}  // namespace brimly
