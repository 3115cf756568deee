#pragma once

#include <optional>
#include <string>

namespace brimly {

// The version shown as "v" followed by it in the control card, the settings window and About:
// the short version string the application carries, or "dev" when it carries none (or an empty
// one).
inline std::string versionText(const std::optional<std::string>& shortVersion) {
  if (!shortVersion || shortVersion->empty()) return "dev";
  return *shortVersion;
}

}  // namespace brimly
