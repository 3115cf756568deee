#pragma once

#include <vector>

#include "core/Geometry.h"
#include "core/MetricKind.h"

namespace brimly {

// Where one metric cell sits, in the grid's own coordinates (origin at the grid's top left).
struct CellPlacement {
  MetricKind kind;
  Rect frame;

  bool operator==(const CellPlacement&) const = default;
};

// The whole grid: its size and every shown cell, row by row in display order.
struct GridGeometry {
  Size size;
  std::vector<CellPlacement> cells;

  bool operator==(const GridGeometry&) const = default;
};

// The inside of one cell, in the cell's own coordinates: a header row (label at the leading edge,
// the large value at the trailing edge), the bar, and the detail line, 5 points apart.
struct CellGeometry {
  Rect header;
  Rect bar;
  Rect detail;
  Size size;
  // What every length of the cell was multiplied by (1 at the usual size).
  double scale = 1.0;

  // The label text of `textSize`: leading, centred vertically in the header row.
  Rect labelFrame(Size textSize) const;
  // The large value of `textSize`: trailing, centred vertically in the header row.
  Rect primaryFrame(Size textSize) const;
  // The detail text of `textSize`: leading, centred vertically in its 11-point line.
  Rect detailTextFrame(Size textSize) const;
  // The coloured part of the bar for `value`, from the bar's leading edge.
  Rect barFillFrame(double value) const;

  bool operator==(const CellGeometry&) const = default;
};

// The geometry of the metric grid: cells in rows of `columns`, 12 points between cells and 8
// between rows, a short last row centred under the full ones, 16 points of padding left and right
// and 6 at top and bottom, and a width held between 580 and 620 points with the content centred.
// A larger panel multiplies every one of these lengths by its `scale` (see `scaleOf`); the
// constants are those of the usual size.
namespace MetricGridLayout {

inline constexpr double cellSpacing = 12.0;
inline constexpr double rowSpacing = 8.0;
inline constexpr double horizontalPadding = 16.0;
inline constexpr double verticalPadding = 6.0;
inline constexpr double minimumWidth = 580.0;
inline constexpr double maximumWidth = 620.0;

inline constexpr double cellPartSpacing = 5.0;  // between header, bar and detail line
inline constexpr double headerSpacing = 6.0;    // least room between label and value
inline constexpr double barHeight = 3.0;
inline constexpr double detailHeight = 11.0;
inline constexpr double minimumBarFill = 2.0;

// The grid for the shown kinds in display order. Every cell is `cellWidth` × `cellHeight` (both
// already at the grid's scale). The grid takes its ideal size: the padded content's width held to
// 580…620 points, and its height. Content wider than 620 points overflows the grid equally on
// both sides. No kinds, or fewer than 1 column, give an empty grid 580 points wide and as tall as
// its padding. At `scale`, the spacings, the paddings and the width's bounds are that many times
// larger.
GridGeometry layout(const std::vector<MetricKind>& kinds, int columns, double cellWidth,
                    double cellHeight, double scale = 1.0);

// The inside of a cell `cellWidth` wide whose header row is `headerHeight` tall (the taller of
// the label's and the value's line heights, which come from the fonts; both already at `scale`),
// with the spacings, the bar and the detail line `scale` times their usual size.
CellGeometry cellLayout(double cellWidth, double headerHeight, double scale = 1.0);

// The height of a cell whose header row is `headerHeight` tall, at `scale`.
double cellHeight(double headerHeight, double scale = 1.0);

// The width of a bar's coloured part: `value` × `cellWidth`, but at least a 2-point stub (at
// `scale`) so that a zero still shows. Values above 1 are not clamped here. A value that is not a
// number, or that is infinite, draws the stub: there is no sensible width for it.
double barFillWidth(double value, double cellWidth, double scale = 1.0);

}  // namespace MetricGridLayout

}  // namespace brimly
