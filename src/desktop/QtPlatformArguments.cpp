#include "desktop/QtPlatformArguments.h"

namespace brimly {

QtPlatformArguments qtPlatformArguments(const std::vector<std::string>& arguments) {
  QtPlatformArguments options;
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    std::string option = arguments[i];
    if (option.rfind("--", 0) == 0) option.erase(0, 1);
    std::optional<std::string>* slot = option == "-platform"             ? &options.platform
                                       : option == "-platformpluginpath" ? &options.pluginPath
                                       : option == "-display"            ? &options.display
                                                                         : nullptr;
    // An option without its value is ignored, as Qt ignores it.
    if (slot != nullptr && i + 1 < arguments.size()) *slot = arguments[++i];
  }
  return options;
}

}  // namespace brimly
