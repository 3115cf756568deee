#include "desktop/DisplayCheck.h"

#include <algorithm>
#include <cctype>
#include <sstream>
#include <vector>

namespace brimly {
namespace {

constexpr const char* kAuditHint = "run \"brimly --audit\" for the readings as text.";

std::string lowered(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

// A name from the command line or the environment, safe to put in the one line printed.
std::string printable(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](unsigned char c) { return std::iscntrl(c) != 0; }, '?');
  return text;
}

std::vector<std::string> platformChoices(const std::string& platformList) {
  // Qt tries a ";"-separated list in order; anything after a ":" is plugin options.
  std::vector<std::string> choices;
  std::stringstream stream(platformList);
  std::string entry;
  while (std::getline(stream, entry, ';')) {
    entry = entry.substr(0, entry.find(':'));
    if (!entry.empty()) choices.push_back(lowered(entry));
  }
  return choices;
}

bool isWayland(const std::string& platform) {
  return platform.rfind("wayland", 0) == 0;
}

// What Qt will try, in order, once choosePlatformPlugin() has had its say.
std::string platformsToTry(const DisplayEnvironment& environment) {
  if (environment.platformArgument) return *environment.platformArgument;
  if (!environment.qpaPlatform.empty()) return environment.qpaPlatform;
  if (const std::optional<std::string> requested = platformToRequest(environment)) {
    return *requested;
  }
  // Qt's own default: Wayland first in a Wayland session (except on GNOME, where Qt prefers
  // XWayland), X11 in any case.
  const bool gnome = lowered(environment.sessionDesktop).find("gnome") != std::string::npos;
  if (environment.sessionType == "wayland" && !gnome) return "wayland;xcb";
  return "xcb";
}

std::string installedList(const std::vector<std::string>& installedPlatforms) {
  std::vector<std::string> names;
  for (const std::string& name : installedPlatforms)
    names.push_back(lowered(name));
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
  std::string list;
  for (const std::string& name : names)
    list += (list.empty() ? "" : ", ") + printable(name);
  return list;
}

}  // namespace

WaylandAnswer waylandAnswer(const std::optional<std::vector<std::string>>& offeredInterfaces) {
  if (!offeredInterfaces) return WaylandAnswer::silent;
  const bool layerShell = std::find(offeredInterfaces->begin(), offeredInterfaces->end(),
                                    "zwlr_layer_shell_v1") != offeredInterfaces->end();
  return layerShell ? WaylandAnswer::layerShell : WaylandAnswer::plain;
}

std::string x11DisplayName(const DisplayEnvironment& environment) {
  return environment.displayArgument.value_or(environment.display);
}

std::optional<std::string> startupProblem(
    const DisplayEnvironment& environment, const std::vector<std::string>& installedPlatforms,
    const std::function<bool(const std::string& displayName)>& x11Opens) {
  const auto installed = [&](const std::string& name) {
    return installedPlatforms.empty() ||
           std::any_of(installedPlatforms.begin(), installedPlatforms.end(),
                       [&](const std::string& key) { return lowered(key) == name; });
  };

  const std::string platformList = platformsToTry(environment);
  std::optional<std::string> firstMissing;
  bool x11Tried = false;
  for (const std::string& choice : platformChoices(platformList)) {
    if (!installed(choice)) {
      if (!firstMissing) firstMissing = choice;
      continue;
    }
    if (choice == "xcb") {
      x11Tried = true;
      const std::string display = x11DisplayName(environment);
      if (!display.empty() && x11Opens && x11Opens(display)) return std::nullopt;
    } else if (isWayland(choice)) {
      if (!environment.waylandDisplay.empty() && environment.wayland != WaylandAnswer::silent) {
        return std::nullopt;
      }
    } else {
      return std::nullopt;  // offscreen, vnc, eglfs…: chosen on purpose and needing no desktop
    }
  }

  // Nothing Qt would try can start. Say what the user can act on.
  const bool userChose = environment.platformArgument || !environment.qpaPlatform.empty();
  if (userChose && (firstMissing || platformChoices(platformList).empty())) {
    return "Brimly: Qt has no platform plugin \"" + printable(firstMissing.value_or(platformList)) +
           "\" (installed: " + installedList(installedPlatforms) + "); " + kAuditHint;
  }
  if (x11Tried && environment.displayArgument) {
    return "Brimly: cannot open the X display \"" + printable(*environment.displayArgument) +
           "\" named by -display; " + kAuditHint;
  }
  if (!environment.waylandDisplay.empty()) {
    if (environment.wayland == WaylandAnswer::silent) {
      // Said only where X11 was tried: a user may have chosen Wayland alone.
      return "Brimly: no Wayland compositor answers on \"" + printable(environment.waylandDisplay) +
             "\" (WAYLAND_DISPLAY)" + (x11Tried ? ", and there is no X11 display; " : "; ") +
             kAuditHint;
    }
    if (installed("wayland")) {
      return std::string(
                 "Brimly: no X11 display in this Wayland session (XWayland is not "
                 "running); set QT_QPA_PLATFORM=wayland to show the panel without "
                 "hovering, or ") +
             kAuditHint;
    }
    return std::string(
               "Brimly: no X11 display in this Wayland session (XWayland is not "
               "running), and Qt's Wayland platform plugin is not installed; ") +
           kAuditHint;
  }
  return std::string(kNoDisplayMessage);
}

std::optional<std::string> platformToRequest(const DisplayEnvironment& environment) {
  if (environment.platformArgument || !environment.qpaPlatform.empty()) return std::nullopt;
  if (x11DisplayName(environment).empty()) return std::nullopt;
  return "xcb";
}

}  // namespace brimly
