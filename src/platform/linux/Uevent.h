#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brimly {

// Every "KEY=VALUE" line of a sysfs uevent file in order, duplicates kept. A line is split at its
// first "=", so values keep any "=" and spaces they contain; lines without "=" or with an empty
// key are skipped.
std::vector<std::pair<std::string, std::string>> parseUeventLines(std::string_view text);

// The properties of one power supply keyed by their attribute file names ("status",
// "voltage_now"), as read from its uevent file or from the attribute files one by one.
class PowerSupplyProperties {
 public:
  void set(std::string name, std::string value);
  const std::string* find(std::string_view name) const;
  // The property as a decimal integer; nothing when missing or not a number.
  std::optional<std::int64_t> integer(std::string_view name) const;
  const std::vector<std::pair<std::string, std::string>>& entries() const { return entries_; }
  bool empty() const { return entries_.empty(); }

 private:
  std::vector<std::pair<std::string, std::string>> entries_;
};

// The power-supply properties of a uevent file: only "POWER_SUPPLY_" lines count (DEVTYPE= and
// the devicetree OF_ lines are not properties), the key loses its prefix and is lower-cased
// (POWER_SUPPLY_VOLTAGE_NOW becomes voltage_now), and a repeated key keeps its last value.
PowerSupplyProperties parsePowerSupplyUevent(std::string_view text);

}  // namespace brimly
