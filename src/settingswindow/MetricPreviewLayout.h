#pragma once

#include <vector>

#include "core/Geometry.h"
#include "core/MetricKind.h"
#include "settingswindow/KindSizes.h"
#include "usage/Color.h"

namespace brimly {

// One cell of the live preview: the short title over a thin bar.
struct PreviewCell {
  MetricKind kind;
  Rect frame;
  Rect title;
  Rect track;  // the bar's full length; the fill starts at its leading edge

  bool operator==(const PreviewCell&) const = default;
};

struct MetricPreviewGeometry {
  Size size;
  std::vector<PreviewCell> cells;  // row by row, in display order

  bool operator==(const MetricPreviewGeometry&) const = default;
};

// A small replica of the panel's grid on a dark well: the shown metrics in rows of three, 8 apart
// both ways, packed against the leading edge, padded 12 all round. Each cell is its title (8,
// semibold, tracked 0.5, secondary) over a capsule track `cellWidth` long and 2.5 high, 4 below.
namespace MetricPreviewLayout {

inline constexpr int columns = 3;
inline constexpr double cellWidth = 96.0;  // what the Metrics tab shows
inline constexpr double padding = 12.0;
inline constexpr double rowSpacing = 8.0;
inline constexpr double cellSpacing = 8.0;
inline constexpr double cornerRadius = 9.0;
inline constexpr double titleSize = 8.0;
inline constexpr double titleTracking = 0.5;
inline constexpr double titleBarSpacing = 4.0;
inline constexpr double barHeight = 2.5;
inline constexpr double minimumFill = 2.0;
// The bar's track: white at 8 %.
inline constexpr Color trackColor = Color::sRGB(1.0, 1.0, 1.0, 0.08);

// The preview `width` wide for the shown kinds in display order. A cell is as wide as its bar or
// its title, whichever is wider.
MetricPreviewGeometry layout(const std::vector<MetricKind>& order, double width, double cellWidth,
                             const KindSizes& titles);

// The coloured part of a bar: `fill` × `cellWidth`, but at least a 2-point stub so that an empty
// bar still shows. A fill that is not a finite number draws the stub.
double fillWidth(double fill, double cellWidth);
Rect fillFrame(const PreviewCell& cell, double fill);

}  // namespace MetricPreviewLayout

}  // namespace brimly
