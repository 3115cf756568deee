#pragma once

#include <vector>

#include "core/Geometry.h"

namespace brimly {

struct AppearanceTabGeometry {
  Rect previewLabel;  // "LIVE PREVIEW"
  Rect preview;
  Rect accentLabel;  // "ACCENT COLOR"
  Rect accentName;   // the chosen accent's name, at the trailing edge of the caption's line
  std::vector<Rect> swatches;  // each with its room for the rings
  Rect sizeLabel;              // "PANEL SIZE"
  std::vector<Rect> sizes;     // "Regular" and "Large", sharing the width
  Rect trendRow;

  bool operator==(const AppearanceTabGeometry&) const = default;
};

// The Appearance tab, top to bottom: the live preview under its caption; the accent swatches in a
// row under "ACCENT COLOR", the chosen one's name at the line's end; the two panel sizes side by
// side under "PANEL SIZE"; and the "Show trend" switch row. A caption's content starts 8 below
// it, and each group 16 below the one before.
namespace AppearanceTabLayout {

inline constexpr double captionGap = 8.0;
inline constexpr double groupGap = 16.0;
inline constexpr double swatchSpacing = 6.0;  // between the swatches' rooms
inline constexpr double sizeHeight = 26.0;
inline constexpr double sizeSpacing = 4.0;  // as the tabs'

struct Parts {
  Size caption;  // the tallest caption; each is as wide as the area
  Size accentName;
  double previewHeight;
  Size swatch;  // a swatch with its room for the rings
  std::size_t swatchCount;
  std::size_t sizeCount;
  double trendRowHeight;
};

AppearanceTabGeometry layout(const Rect& area, const Parts& parts);

}  // namespace AppearanceTabLayout

}  // namespace brimly
