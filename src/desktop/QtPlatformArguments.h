#pragma once

#include <optional>
#include <string>
#include <vector>

namespace brimly {

// The options by which the command line picks Qt's window system, read the way Qt reads them:
// "-platform <name>", "-platformpluginpath <folder>" and, for X11, "-display <name>", each also
// with two dashes, the value in the next argument; the last one given counts. The program name is
// not an option.
struct QtPlatformArguments {
  std::optional<std::string> platform;
  std::optional<std::string> pluginPath;
  std::optional<std::string> display;
};
QtPlatformArguments qtPlatformArguments(const std::vector<std::string>& arguments);

}  // namespace brimly
