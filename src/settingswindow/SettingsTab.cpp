#include "settingswindow/SettingsTab.h"

namespace brimly {

std::optional<SettingsTab> SettingsTab::fromRawValue(std::string_view rawValue) {
  for (const SettingsTab tab : allCases()) {
    if (tab.rawValue() == rawValue) return tab;
  }
  return std::nullopt;
}

std::string_view SettingsTab::rawValue() const {
  switch (value_) {
    case general:
      return "general";
    case metrics:
      return "metrics";
    case appearance:
      return "appearance";
  }
  return "general";
}

std::string_view SettingsTab::title() const {
  switch (value_) {
    case general:
      return "General";
    case metrics:
      return "Metrics";
    case appearance:
      return "Appearance";
  }
  return "General";
}

std::string_view SettingsTab::symbolName() const {
  switch (value_) {
    case general:
      return "gearshape";
    case metrics:
      return "square.grid.2x2";
    case appearance:
      return "paintpalette";
  }
  return "gearshape";
}

const std::vector<SettingsTab>& SettingsTab::allCases() {
  static const std::vector<SettingsTab> cases{general, metrics, appearance};
  return cases;
}

}  // namespace brimly
