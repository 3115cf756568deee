#include "usage/UsageColors.h"

namespace brimly {

ColorPair usageColors(double fraction) {
  if (fraction < 0.55) {
    return {Color::displayP3(0.36, 0.78, 0.55), Color::displayP3(0.30, 0.72, 0.62)};
  }
  if (fraction < 0.80) {
    return {Color::displayP3(0.98, 0.74, 0.27), Color::displayP3(0.95, 0.55, 0.20)};
  }
  return {Color::displayP3(0.96, 0.38, 0.35), Color::displayP3(0.88, 0.22, 0.42)};
}

ColorPair colors(double value, const BarPalette& palette) {
  switch (palette.kind()) {
    case BarPalette::Kind::usage:
      return usageColors(value);
    case BarPalette::Kind::heat:
      // On the temperature bar's scale: green below about 60 °C, amber below about 80 °C.
      if (value < 0.43) return usageColors(0.3);
      if (value < 0.72) return usageColors(0.65);
      return usageColors(0.9);
    case BarPalette::Kind::absent:
      return {dimmedBar, dimmedBar};
    case BarPalette::Kind::power:
      break;
  }
  switch (palette.powerState().kind()) {
    case PowerState::Kind::discharging:
      return usageColors(value);
    case PowerState::Kind::charging:
      return {Color::displayP3(0.36, 0.78, 0.85), Color::displayP3(0.32, 0.62, 0.92)};
    case PowerState::Kind::acIdle:
    case PowerState::Kind::unknown:
      break;
  }
  return {dimmedBar, dimmedBar};
}

}  // namespace brimly
