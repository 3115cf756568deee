#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace brimly {

// One of the settings window's three tabs. The declaration order is the order of the tab bar.
class SettingsTab {
 public:
  enum Value : std::uint8_t { general, metrics, appearance };

  constexpr SettingsTab(Value value) : value_(value) {}  // NOLINT: implicit like an enum case

  // The tab whose identity is exactly `rawValue` (case-sensitive).
  static std::optional<SettingsTab> fromRawValue(std::string_view rawValue);

  // The tab's identity: "general", "metrics", "appearance".
  std::string_view rawValue() const;
  // The button's text: "General", "Metrics", "Appearance".
  std::string_view title() const;
  // The symbol beside the title: "gearshape", "square.grid.2x2", "paintpalette".
  std::string_view symbolName() const;

  constexpr Value value() const { return value_; }
  constexpr operator Value() const { return value_; }  // NOLINT: lets a tab drive a switch

  // Every tab, in the tab bar's order.
  static const std::vector<SettingsTab>& allCases();

 private:
  Value value_;
};

}  // namespace brimly
