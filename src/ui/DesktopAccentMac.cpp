#include "ui/DesktopAccent.h"

#include "platform/macos/MacAccentColor.h"

namespace brimly {

std::optional<Color> DesktopAccent::color() const {
  const std::optional<std::array<double, 3>> accent = macControlAccentColor();
  if (!accent) return std::nullopt;
  return Color::sRGB((*accent)[0], (*accent)[1], (*accent)[2]);
}

void DesktopAccent::watchSystem() {
  systemWatch_ = watchMacSystemColors([this] { emit changed(); });
}

}  // namespace brimly
