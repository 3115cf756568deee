#include "core/Appearance.h"

#include <algorithm>

namespace brimly {

namespace {

struct AccentNames {
  AccentChoice accent;
  std::string_view stored;
  std::string_view shown;
};

constexpr std::array<AccentNames, accentChoices.size()> accentNames = {{
    {AccentChoice::green, "green", "Green"},
    {AccentChoice::blue, "blue", "Blue"},
    {AccentChoice::indigo, "indigo", "Indigo"},
    {AccentChoice::purple, "purple", "Purple"},
    {AccentChoice::pink, "pink", "Pink"},
    {AccentChoice::orange, "orange", "Orange"},
    {AccentChoice::graphite, "graphite", "Graphite"},
    {AccentChoice::system, "system", "System"},
}};

const AccentNames& namesOf(AccentChoice accent) {
  return *std::find_if(accentNames.begin(), accentNames.end(),
                       [accent](const AccentNames& names) { return names.accent == accent; });
}

}  // namespace

std::string_view storedName(AccentChoice accent) {
  return namesOf(accent).stored;
}

std::string_view displayName(AccentChoice accent) {
  return namesOf(accent).shown;
}

std::optional<AccentChoice> accentChoiceNamed(std::string_view storedName) {
  const auto found =
      std::find_if(accentNames.begin(), accentNames.end(),
                   [storedName](const AccentNames& names) { return names.stored == storedName; });
  if (found == accentNames.end()) return std::nullopt;
  return found->accent;
}

std::string_view storedName(PanelSize size) {
  return size == PanelSize::large ? "large" : "regular";
}

std::string_view displayName(PanelSize size) {
  return size == PanelSize::large ? "Large" : "Regular";
}

std::optional<PanelSize> panelSizeNamed(std::string_view storedName) {
  if (storedName == "regular") return PanelSize::regular;
  if (storedName == "large") return PanelSize::large;
  return std::nullopt;
}

double scaleOf(PanelSize size) {
  return size == PanelSize::large ? 1.25 : 1.0;
}

}  // namespace brimly
