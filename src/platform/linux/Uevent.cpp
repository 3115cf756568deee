#include "platform/linux/Uevent.h"

#include <algorithm>

#include "platform/linux/SysfsText.h"

namespace brimly {

std::vector<std::pair<std::string, std::string>> parseUeventLines(std::string_view text) {
  std::vector<std::pair<std::string, std::string>> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    const std::size_t equals = line.find('=');
    if (equals != std::string_view::npos && equals > 0) {
      lines.emplace_back(std::string(line.substr(0, equals)), std::string(line.substr(equals + 1)));
    }
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return lines;
}

void PowerSupplyProperties::set(std::string name, std::string value) {
  auto existing = std::find_if(entries_.begin(), entries_.end(),
                               [&](const auto& entry) { return entry.first == name; });
  if (existing != entries_.end()) {
    existing->second = std::move(value);
  } else {
    entries_.emplace_back(std::move(name), std::move(value));
  }
}

const std::string* PowerSupplyProperties::find(std::string_view name) const {
  for (const auto& entry : entries_) {
    if (entry.first == name) return &entry.second;
  }
  return nullptr;
}

std::optional<std::int64_t> PowerSupplyProperties::integer(std::string_view name) const {
  const std::string* value = find(name);
  if (value == nullptr) return std::nullopt;
  return parseSysfsInteger(*value);
}

PowerSupplyProperties parsePowerSupplyUevent(std::string_view text) {
  constexpr std::string_view kPrefix = "POWER_SUPPLY_";
  PowerSupplyProperties properties;
  for (auto& [key, value] : parseUeventLines(text)) {
    if (key.size() <= kPrefix.size() || key.compare(0, kPrefix.size(), kPrefix) != 0) continue;
    std::string name = key.substr(kPrefix.size());
    std::transform(name.begin(), name.end(), name.begin(), [](char c) {
      return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    properties.set(std::move(name), std::move(value));
  }
  return properties;
}

}  // namespace brimly
