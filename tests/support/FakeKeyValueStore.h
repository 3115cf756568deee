#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/KeyValueStore.h"

namespace brimly {

// An in-memory preferences store that records every write, and can be told to fail them. A key
// can also hold a value of a type the reads do not accept (`OtherValue`), to stand for a mistyped
// entry.
class FakeKeyValueStore : public KeyValueStore {
 public:
  struct OtherValue {
    bool operator==(const OtherValue&) const = default;
  };
  using Value = std::variant<bool, std::vector<std::string>, std::string, OtherValue>;

  struct Write {
    std::string key;
    Value value;
    bool operator==(const Write&) const = default;
  };

  std::optional<bool> readBool(std::string_view key) const override {
    ++reads;
    if (failed) return std::nullopt;
    const auto found = values.find(std::string(key));
    if (found == values.end() || !std::holds_alternative<bool>(found->second)) return std::nullopt;
    return std::get<bool>(found->second);
  }

  std::optional<std::vector<std::string>> readStringList(std::string_view key) const override {
    ++reads;
    if (failed) return std::nullopt;
    const auto found = values.find(std::string(key));
    if (found == values.end() || !std::holds_alternative<std::vector<std::string>>(found->second)) {
      return std::nullopt;
    }
    return std::get<std::vector<std::string>>(found->second);
  }

  std::optional<std::string> readString(std::string_view key) const override {
    ++reads;
    if (failed) return std::nullopt;
    const auto found = values.find(std::string(key));
    if (found == values.end() || !std::holds_alternative<std::string>(found->second)) {
      return std::nullopt;
    }
    return std::get<std::string>(found->second);
  }

  std::optional<std::string> writeBool(std::string_view key, bool value) override {
    return record(key, value);
  }

  std::optional<std::string> writeStringList(std::string_view key,
                                             const std::vector<std::string>& value) override {
    return record(key, value);
  }

  std::optional<std::string> writeString(std::string_view key, std::string_view value) override {
    return record(key, std::string(value));
  }

  bool readFailed() const override { return failed; }

  std::map<std::string, Value> values;
  std::vector<Write> writes;
  mutable int reads = 0;
  bool failed = false;
  // While set, every write fails with this reason and changes nothing (it is still recorded).
  std::optional<std::string> writeFailure;

 private:
  std::optional<std::string> record(std::string_view key, Value value) {
    writes.push_back(Write{std::string(key), value});
    if (writeFailure) return writeFailure;
    values[std::string(key)] = std::move(value);
    return std::nullopt;
  }
};

}  // namespace brimly
