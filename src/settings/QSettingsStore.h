#pragma once

#include <QSettings>
#include <QString>
#include <memory>

#include "platform/KeyValueStore.h"

namespace brimly {

// The preferences kept by QSettings in an INI file: by default "Brimly.conf" in the "brimly"
// folder of the user's configuration directory ($XDG_CONFIG_HOME, usually ~/.config).
//
// In the INI format a value carries no type, so the reads follow how QSettings writes values:
// a Boolean is the text "true" or "false"; a string list is a comma-separated list, and a list of
// one string is written as that string alone, so a plain string reads as a list of one. Anything
// else (numbers like "1", byte arrays, other serialised types) is of the wrong type and reads
// as nothing.
//
// Each write is flushed to the file at once. Nothing is written until a value is set, and a store
// that could not read its file never writes it: a damaged, oversized or odd file stays exactly as
// the user left it, and Brimly runs from its defaults. Only a regular file of at most 64 KiB is
// ever opened (following a link to one is fine): a FIFO, a device or a folder at the path, or a
// bigger file, makes the store a failed one, with one line on standard error saying why.
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

  // The user's own preferences file.
  QSettingsStore();
  // The preferences in the INI file at `filePath` (tests use a temporary folder).
  explicit QSettingsStore(const QString& filePath);

  std::optional<bool> readBool(std::string_view key) const override;
  std::optional<std::vector<std::string>> readStringList(std::string_view key) const override;
  void writeBool(std::string_view key, bool value) override;
  void writeStringList(std::string_view key, const std::vector<std::string>& value) override;
  bool readFailed() const override { return readFailed_; }

  // Where the file is.
  QString fileName() const { return settings_ ? settings_->fileName() : filePath_; }

 private:
  QString filePath_;
  // None when the file was refused before QSettings could open it.
  std::unique_ptr<QSettings> settings_;
  bool readFailed_ = false;
};

}  // namespace brimly
