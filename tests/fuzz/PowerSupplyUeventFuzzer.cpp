// Feeds arbitrary bytes to the uevent parsers and the power-supply mapping. The input is cut at
// the first NUL into two supplies, so combinations (battery with mains, two batteries) are
// explored. Checks that only power-supply keys become properties and that a description is
// produced for a battery exactly when one was counted.
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/linux/PowerSupplyMapping.h"
#include "platform/linux/Uevent.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  for (const auto& [key, value] : brimly::parseUeventLines(text)) {
    if (key.empty() || key.find('\n') != std::string::npos) __builtin_trap();
  }
  const std::size_t cut = text.find('\0');
  std::vector<brimly::PowerSupply> supplies;
  supplies.push_back({"BAT0", brimly::parsePowerSupplyUevent(text.substr(0, cut))});
  if (cut != std::string_view::npos) {
    supplies.push_back({"AC", brimly::parsePowerSupplyUevent(text.substr(cut + 1))});
  }
  for (const auto& supply : supplies) {
    for (const auto& [name, value] : supply.properties.entries()) {
      if (name.empty()) __builtin_trap();
      for (char c : name) {
        if (c >= 'A' && c <= 'Z') __builtin_trap();
      }
    }
  }
  const brimly::PowerSupplySnapshot snapshot = brimly::describePowerSupplies(supplies);
  for (const auto& description : snapshot.descriptions) {
    if (!description || description->string("Power Source State") == nullptr) __builtin_trap();
  }
  if (snapshot.smartBattery && snapshot.descriptions.empty()) __builtin_trap();
  return 0;
}
