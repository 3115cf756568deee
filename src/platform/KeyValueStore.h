#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brimly {

// The user's persisted preferences: a per-user store of Boolean, string and string-list values
// under string keys. Reads never fail loudly: a key that is absent, or that holds a value of
// another type, reads as nothing.
class KeyValueStore {
 public:
  virtual ~KeyValueStore() = default;

  // The Boolean under `key`; nothing when absent or not a Boolean.
  virtual std::optional<bool> readBool(std::string_view key) const = 0;
  // The list of strings under `key`; nothing when absent or not a list of strings.
  virtual std::optional<std::vector<std::string>> readStringList(std::string_view key) const = 0;
  // The string under `key`; nothing when absent or not a string.
  virtual std::optional<std::string> readString(std::string_view key) const = 0;

  // Stores the value at once. Nothing when it was stored; else why not, in one line (the stored
  // value is then the one before).
  [[nodiscard]] virtual std::optional<std::string> writeBool(std::string_view key, bool value) = 0;
  [[nodiscard]] virtual std::optional<std::string> writeStringList(
      std::string_view key, const std::vector<std::string>& value) = 0;
  [[nodiscard]] virtual std::optional<std::string> writeString(std::string_view key,
                                                               std::string_view value) = 0;

  // Whether the stored preferences could not be read (unreadable or malformed). Every read then
  // gives nothing, so that the program starts from its defaults.
  virtual bool readFailed() const = 0;
};

}  // namespace brimly
