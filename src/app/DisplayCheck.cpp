#include "app/DisplayCheck.h"

#include <sstream>
#include <vector>

namespace brimly {
namespace {

std::vector<std::string> platformChoices(const std::string& qpaPlatform) {
  // Qt tries a ";"-separated list in order; anything after a ":" is plugin options.
  std::vector<std::string> choices;
  std::stringstream stream(qpaPlatform);
  std::string entry;
  while (std::getline(stream, entry, ';')) {
    entry = entry.substr(0, entry.find(':'));
    if (!entry.empty()) choices.push_back(entry);
  }
  return choices;
}

bool isWayland(const std::string& platform) {
  return platform.rfind("wayland", 0) == 0;
}

}  // namespace

bool displayAvailable(const DisplayEnvironment& environment,
                      const std::function<bool()>& x11Opens) {
  const auto x11 = [&] { return !environment.display.empty() && x11Opens && x11Opens(); };
  const auto wayland = [&] { return !environment.waylandDisplay.empty(); };

  const std::vector<std::string> choices = platformChoices(environment.qpaPlatform);
  if (choices.empty()) return wayland() || x11();
  for (const std::string& choice : choices) {
    if (choice == "xcb") {
      if (x11()) return true;
    } else if (isWayland(choice)) {
      if (wayland()) return true;
    } else {
      return true;  // offscreen, vnc, eglfs…: chosen on purpose and needing no desktop
    }
  }
  return false;
}

std::optional<std::string> platformToRequest(const DisplayEnvironment& environment) {
  if (!environment.qpaPlatform.empty() || environment.display.empty()) return std::nullopt;
  return "xcb";
}

}  // namespace brimly
