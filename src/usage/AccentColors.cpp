#include "usage/AccentColors.h"

#include "usage/Theme.h"

namespace brimly::AccentColors {

Color of(AccentChoice choice, std::optional<Color> desktopAccent) {
  switch (choice) {
    case AccentChoice::green:
      return Theme::accent;
    case AccentChoice::blue:
      return Color::displayP3(0.27, 0.56, 0.98);
    case AccentChoice::indigo:
      return Color::displayP3(0.42, 0.43, 0.93);
    case AccentChoice::purple:
      return Color::displayP3(0.70, 0.45, 0.92);
    case AccentChoice::pink:
      return Color::displayP3(0.95, 0.40, 0.58);
    case AccentChoice::orange:
      return Color::displayP3(0.98, 0.62, 0.27);
    case AccentChoice::graphite:
      return Color::displayP3(0.60, 0.61, 0.65);
    case AccentChoice::system:
      return desktopAccent.value_or(Theme::accent);
  }
  return Theme::accent;
}

}  // namespace brimly::AccentColors
