#pragma once

#include <optional>
#include <string>

namespace brimly {

// Whether the application starts when the user logs in: a login item of the system's service
// management on macOS, an XDG autostart entry on Linux. Main thread only.
class LoginItemPort {
 public:
  virtual ~LoginItemPort() = default;
  // The registration as the system holds it now (read afresh on every call).
  virtual bool isEnabled() const = 0;
  // Registers (`true`) or unregisters the application. Nothing on success; the reason, in the
  // system's own words, when it failed.
  virtual std::optional<std::string> setEnabled(bool enabled) = 0;
};

}  // namespace brimly
