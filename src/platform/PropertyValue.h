#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace brimly {

class PropertyValue;

// A list of property values, as a property list array.
using PropertyList = std::vector<PropertyValue>;

// A string-keyed dictionary in the platform's own order, as the system hands out power-source
// descriptions and registry properties. Keys are unique; `set` replaces an existing entry.
class PropertyDict {
 public:
  using Entry = std::pair<std::string, PropertyValue>;

  PropertyDict() = default;
  PropertyDict(std::initializer_list<Entry> entries);

  void set(std::string key, PropertyValue value);
  const PropertyValue* find(std::string_view key) const;
  const std::vector<Entry>& entries() const { return entries_; }
  bool empty() const;

  // Typed look-ups: absent when the key is missing or holds another type.
  std::optional<std::int64_t> integer(std::string_view key) const;
  std::optional<double> real(std::string_view key) const;
  std::optional<bool> boolean(std::string_view key) const;
  const std::string* string(std::string_view key) const;
  const PropertyDict* dict(std::string_view key) const;

  bool operator==(const PropertyDict& other) const;

 private:
  std::vector<Entry> entries_;
};

// One value of a property dictionary: a Boolean, an integer, a floating-point number, a string, a
// list or a nested dictionary. Integers and floats stay distinct, as the system keeps them.
class PropertyValue {
 public:
  using Storage = std::variant<bool, std::int64_t, double, std::string, PropertyList, PropertyDict>;

  PropertyValue(bool value) : storage_(value) {}                      // NOLINT: value-like
  PropertyValue(int value) : storage_(std::int64_t{value}) {}         // NOLINT
  PropertyValue(std::int64_t value) : storage_(value) {}              // NOLINT
  PropertyValue(double value) : storage_(value) {}                    // NOLINT
  PropertyValue(const char* value) : storage_(std::string(value)) {}  // NOLINT
  PropertyValue(std::string value) : storage_(std::move(value)) {}    // NOLINT
  PropertyValue(PropertyList value) : storage_(std::move(value)) {}   // NOLINT
  PropertyValue(PropertyDict value) : storage_(std::move(value)) {}   // NOLINT

  const Storage& storage() const { return storage_; }

  template <typename T>
  const T* get() const {
    return std::get_if<T>(&storage_);
  }

  bool operator==(const PropertyValue& other) const { return storage_ == other.storage_; }

 private:
  Storage storage_;
};

// Defined here, where PropertyValue is complete: clang instantiates the entry type eagerly.
inline bool PropertyDict::empty() const {
  return entries_.empty();
}

// The plain textual form of a value, as a diagnostic listing prints it: integers in decimal,
// floats in shortest round-trip form, Booleans as true/false, strings as they are, lists as
// "(a, b)" and dictionaries as "{key = value; …}".
std::string describe(const PropertyValue& value);

}  // namespace brimly
