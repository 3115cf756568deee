#pragma once

#include "core/Geometry.h"

namespace brimly {

// One row of the General tab, in the row's coordinates.
struct SettingRowGeometry {
  Size size;
  Rect symbolFrame;  // 18 wide at the leading edge, the row's full height
  Rect symbol;       // centred in its frame
  Rect title;
  Rect toggle;  // the switch's track, at the trailing edge

  bool operator==(const SettingRowGeometry&) const = default;
};

// A symbol in a frame 18 wide, the title 8 to its right, and a small switch at the trailing
// edge; everything vertically centred in the row, which is as tall as its tallest part.
namespace SettingRowLayout {

inline constexpr double symbolSize = 12.5;  // secondary
inline constexpr double symbolFrameWidth = 18.0;
inline constexpr double spacing = 8.0;
inline constexpr double titleSize = 12.5;  // primary

// `width` is the row's; `title` the measured title; `toggle` the switch's track. A title that
// would run into the switch is cut 8 points before it.
SettingRowGeometry layout(double width, Size title, Size toggle);

}  // namespace SettingRowLayout

}  // namespace brimly
