#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "platform/LoginItemPort.h"

namespace brimly {

// Launch at login through an XDG autostart entry, `<config home>/autostart/<bundle id>.desktop`,
// which the desktop session reads at the next login. Enabling writes the entry (replacing one a
// settings application may have hidden, but never writing through a link or over another user's
// file); disabling deletes it. Nothing is cached: every question looks at the file again, so
// changes made elsewhere show at once. Paths are bytes, as the system has them.
class XdgAutostartLoginItem final : public LoginItemPort {
 public:
  // At most this much of an entry is read to tell whether it is switched off.
  static constexpr std::size_t kReadCap = 8 * 1024;

  // `configHome` is the absolute path of the folder that holds `autostart/` (empty or relative
  // when none is known: the item is then off and cannot be switched on); `executablePath` is the
  // absolute path of the program the entry starts.
  XdgAutostartLoginItem(std::string configHome, std::string executablePath);

  // The item for the user running this process ($XDG_CONFIG_HOME, as the XDG rules read it),
  // starting `executablePath`.
  static std::unique_ptr<XdgAutostartLoginItem> forThisUser(std::string executablePath);

  // The entry's path; empty when no configuration folder is known.
  std::string entryPath() const;

  bool isEnabled() const override;
  std::optional<std::string> setEnabled(bool enabled) override;

 private:
  std::string autostartFolder() const;
  std::optional<std::string> writeEntry() const;
  std::optional<std::string> removeEntry() const;

  std::string configHome_;
  std::string executablePath_;
};

}  // namespace brimly
