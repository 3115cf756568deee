#pragma once

#include <QString>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "platform/LoginItemPort.h"

namespace brimly {

// Launch at login through an XDG autostart entry, `<config home>/autostart/<bundle id>.desktop`,
// which the desktop session reads at the next login. Enabling writes the entry (replacing one a
// settings application may have hidden); disabling deletes it. Nothing is cached: every question
// looks at the file again, so changes made elsewhere show at once.
class XdgAutostartLoginItem final : public LoginItemPort {
 public:
  // At most this much of an entry is read to tell whether it is switched off.
  static constexpr std::size_t kReadCap = 8 * 1024;

  // `configHome` is the absolute path of the folder that holds `autostart/` (empty or relative
  // when none is known: the item is then off and cannot be switched on); `executablePath` is the
  // absolute path of the program the entry starts.
  XdgAutostartLoginItem(QString configHome, QString executablePath);

  // The item for the user running this process, starting `executablePath`.
  static std::unique_ptr<XdgAutostartLoginItem> forThisUser(const QString& executablePath);
  // The user's configuration folder from the values of $XDG_CONFIG_HOME and $HOME: the first when
  // it is an absolute path, else `.config` in the second when that is one, else empty.
  static QString chooseConfigHome(const QString& xdgConfigHome, const QString& home);

  // The entry's path; empty when no configuration folder is known.
  QString entryPath() const;

  bool isEnabled() const override;
  std::optional<std::string> setEnabled(bool enabled) override;

 private:
  QString autostartFolder() const;
  std::optional<std::string> writeEntry() const;
  std::optional<std::string> removeEntry() const;

  QString configHome_;
  QString executablePath_;
};

}  // namespace brimly
