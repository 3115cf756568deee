#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>
#include <string>
#include <variant>

#include "platform/KeyValueStore.h"

namespace brimly {

// The preferences in an INI file in QSettings' format: by default "Brimly.conf" in the "brimly"
// folder of the user's configuration folder ($XDG_CONFIG_HOME when it is an absolute path, else
// ~/.config).
//
// In the INI format a value carries no type, so the reads follow how QSettings writes values:
// a Boolean is the text "true" or "false"; a string list is a comma-separated list, and a list of
// one string is written as that string alone, so a plain string reads as a list of one (and as a
// string), while a list of several is not a string. Anything else (numbers like "1", byte arrays,
// other serialised types) is of the wrong type and reads as nothing.
//
// The file is looked at afresh before every read and every write, and only a regular file of this
// user of at most 64 KiB is ever opened (reading through a link to one is fine): a FIFO, a device,
// a folder, another user's file or a bigger one is refused without waiting on it. Each write
// replaces the whole file at once, keeping the keys it does not set, and never writes through a
// link at the path. Nothing is written until a value is set, and a store whose file was refused or
// could not be parsed when it was made never writes it: a damaged, oversized or odd file stays
// exactly as the user left it, and Brimly runs from its defaults, saying so in one line on
// standard error.
//
// This is the Linux store. On macOS the preferences belong in the user-defaults domain named by
// the bundle identifier, "app.brimly.Brimly", which QSettings cannot address: its native format
// builds the domain from the organisation and application names, reversing the organisation
// domain only when it ends in a two-letter or a classic top-level domain, so "brimly.app" would
// become "com.brimly-app.Brimly". The macOS store therefore talks to the preferences system
// directly (behind the same KeyValueStore port) with that identifier.
class QSettingsStore : public KeyValueStore {
 public:
  // The largest settings file that is read. Brimly's own file is a few hundred bytes.
  static constexpr qint64 kMaxFileBytes = 64 * 1024;

  // The user's own preferences file; none (every write fails) without a configuration folder.
  QSettingsStore();
  // The preferences in the INI file at `filePath`, in the system's bytes (tests use a temporary
  // folder); an empty path stands for no file at all.
  explicit QSettingsStore(std::string filePath);
  explicit QSettingsStore(const QString& filePath);

  std::optional<bool> readBool(std::string_view key) const override;
  std::optional<std::vector<std::string>> readStringList(std::string_view key) const override;
  std::optional<std::string> readString(std::string_view key) const override;
  std::optional<std::string> writeBool(std::string_view key, bool value) override;
  std::optional<std::string> writeStringList(std::string_view key,
                                             const std::vector<std::string>& value) override;
  std::optional<std::string> writeString(std::string_view key, std::string_view value) override;
  bool readFailed() const override { return !refusedAtStart_.empty(); }

  // Where the file is, for people to read.
  QString fileName() const;

 private:
  // Every value in the file as it is now (none when there is no file yet), or why it cannot be
  // read.
  std::variant<QVariantMap, std::string> load() const;
  QVariant readValue(std::string_view key) const;
  std::optional<std::string> write(std::string_view key, const QVariant& value);

  std::string filePath_;
  // Why the file could not be read when the store was made; empty when it could.
  std::string refusedAtStart_;
};

}  // namespace brimly
