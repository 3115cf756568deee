#pragma once

#include <string>

#include "platform/KeyValueStore.h"

namespace brimly {

// The user's preferences in the preferences system, under an application domain (by default the
// bundle identifier, "app.brimly.Brimly"), the place `defaults read app.brimly.Brimly` shows.
//
// Booleans read as the user-defaults system's boolForKey: reads them (preferenceBool in
// MacReadingRules.h), so that `defaults write app.brimly.Brimly isPinned -bool true`, `-int 1` and
// `-string YES` all pin the panel; a list or a dictionary there reads as nothing. String lists
// are strict: an array whose elements are all strings; a string is a string. Anything else, or a
// key that is absent, reads as nothing. The preferences system answers from its own cache and
// never reports a damaged file, so readFailed() is always false: a damaged domain simply reads as
// empty.
//
// Each write is synchronised at once; a write the preferences system could not save says so.
// Thread-safe as the preferences system is; used on the main thread.
class MacPreferencesStore final : public KeyValueStore {
 public:
  MacPreferencesStore();
  explicit MacPreferencesStore(std::string applicationDomain);

  std::optional<bool> readBool(std::string_view key) const override;
  std::optional<std::vector<std::string>> readStringList(std::string_view key) const override;
  std::optional<std::string> readString(std::string_view key) const override;
  std::optional<std::string> writeBool(std::string_view key, bool value) override;
  std::optional<std::string> writeStringList(std::string_view key,
                                             const std::vector<std::string>& value) override;
  std::optional<std::string> writeString(std::string_view key, std::string_view value) override;
  bool readFailed() const override { return false; }

  const std::string& applicationDomain() const { return domain_; }

 private:
  std::string domain_;
};

}  // namespace brimly
