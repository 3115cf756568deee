#pragma once

#include <cstddef>
#include <vector>

#include "core/Geometry.h"

namespace brimly {

struct GeneralTabGeometry {
  Rect sectionLabel;
  std::vector<Rect> rows;

  bool operator==(const GeneralTabGeometry&) const = default;
};

// The General tab: the "GENERAL" caption at the top, and 12 below it the switch rows, 14 apart.
namespace GeneralTabLayout {

inline constexpr double rowsTop = 12.0;  // below the caption
inline constexpr double rowSpacing = 14.0;

// `area` is where the tab lays itself out; every row spans its width and is `rowHeight` tall.
GeneralTabGeometry layout(const Rect& area, Size sectionLabel, std::size_t rowCount,
                          double rowHeight);

}  // namespace GeneralTabLayout

}  // namespace brimly
