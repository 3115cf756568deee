#pragma once

#include "core/Geometry.h"

namespace brimly {

struct AppearanceTabGeometry {
  Rect symbol;
  Rect title;
  Rect subtitle;

  bool operator==(const AppearanceTabGeometry&) const = default;
};

// The Appearance tab's placeholder: a palette, "Themes & accent colors" and "Coming in a future
// update", centred across the width, 10 apart, 40 below the top of the content.
namespace AppearanceTabLayout {

inline constexpr double top = 40.0;
inline constexpr double spacing = 10.0;
inline constexpr double symbolSize = 30.0;  // accent at 70 %
inline constexpr double symbolOpacity = 0.7;
inline constexpr double titleSize = 13.0;     // medium, primary
inline constexpr double subtitleSize = 11.0;  // secondary

AppearanceTabGeometry layout(const Rect& area, Size title, Size subtitle);

}  // namespace AppearanceTabLayout

}  // namespace brimly
