#include "platform/PropertyValue.h"

#include <algorithm>
#include <charconv>

namespace brimly {

PropertyDict::PropertyDict(std::initializer_list<Entry> entries) {
  for (const auto& entry : entries) set(entry.first, entry.second);
}

void PropertyDict::set(std::string key, PropertyValue value) {
  auto existing = std::find_if(entries_.begin(), entries_.end(),
                               [&](const Entry& entry) { return entry.first == key; });
  if (existing != entries_.end()) {
    existing->second = std::move(value);
  } else {
    entries_.emplace_back(std::move(key), std::move(value));
  }
}

const PropertyValue* PropertyDict::find(std::string_view key) const {
  for (const auto& entry : entries_) {
    if (entry.first == key) return &entry.second;
  }
  return nullptr;
}

std::optional<std::int64_t> PropertyDict::integer(std::string_view key) const {
  const PropertyValue* value = find(key);
  if (value == nullptr) return std::nullopt;
  if (const auto* number = value->get<std::int64_t>()) return *number;
  return std::nullopt;
}

std::optional<double> PropertyDict::real(std::string_view key) const {
  const PropertyValue* value = find(key);
  if (value == nullptr) return std::nullopt;
  if (const auto* number = value->get<double>()) return *number;
  return std::nullopt;
}

std::optional<bool> PropertyDict::boolean(std::string_view key) const {
  const PropertyValue* value = find(key);
  if (value == nullptr) return std::nullopt;
  if (const auto* flag = value->get<bool>()) return *flag;
  return std::nullopt;
}

const std::string* PropertyDict::string(std::string_view key) const {
  const PropertyValue* value = find(key);
  return value == nullptr ? nullptr : value->get<std::string>();
}

const PropertyDict* PropertyDict::dict(std::string_view key) const {
  const PropertyValue* value = find(key);
  return value == nullptr ? nullptr : value->get<PropertyDict>();
}

bool PropertyDict::operator==(const PropertyDict& other) const { return entries_ == other.entries_; }

namespace {

std::string shortestDecimal(double value) {
  char buffer[64];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}

struct Describer {
  std::string operator()(bool value) const { return value ? "true" : "false"; }
  std::string operator()(std::int64_t value) const { return std::to_string(value); }
  std::string operator()(double value) const { return shortestDecimal(value); }
  std::string operator()(const std::string& value) const { return value; }
  std::string operator()(const PropertyList& list) const {
    std::string text = "(";
    for (std::size_t i = 0; i < list.size(); ++i) {
      if (i > 0) text += ", ";
      text += describe(list[i]);
    }
    return text + ")";
  }
  std::string operator()(const PropertyDict& dict) const {
    std::string text = "{";
    for (const auto& [key, value] : dict.entries()) {
      text += key + " = " + describe(value) + "; ";
    }
    return text + "}";
  }
};

}  // namespace

std::string describe(const PropertyValue& value) { return std::visit(Describer{}, value.storage()); }

}  // namespace brimly
