#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/DesktopIntegration.h"

namespace brimly {

// Before the Qt application exists: why there is no desktop to show the panel on, as the one line
// to print, or nothing when there is one. Qt itself would end the process with a core dump: when
// there is no display, when the platform asked for (QT_QPA_PLATFORM, "-platform") is not
// installed, or when the X server named by "-display" does not answer. `arguments` is the whole
// command line, the program name first.
std::optional<std::string> desktopProblem(const std::vector<std::string>& arguments);

// Before the Qt application exists: asks Qt for the platform plugin the panel works best with,
// and for the cheapest way to put small repaints on screen, unless the user chose otherwise, and
// makes the display named on the command line the one every connection of the program opens.
void choosePlatformPlugin(const std::vector<std::string>& arguments);

// The integration for the desktop the running Qt application talks to; called after the
// application object exists.
std::unique_ptr<DesktopIntegration> makeDesktopIntegration();

// Whether the running program starts at the user's login, as the system keeps it.
std::unique_ptr<LoginItemPort> makeLoginItem();

// The status item of a desktop reached through Qt (a system tray or a D-Bus host).
// `pointerReadable`: whether Qt reads the pointer's position anywhere on the desktop (X11), for
// a click whose position the tray does not tell.
std::unique_ptr<StatusItemPort> makeStatusItem(bool pointerReadable);

// The build links the one definition of these five that fits the system.

}  // namespace brimly
