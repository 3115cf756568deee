#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "core/Geometry.h"
#include "core/MetricKind.h"
#include "settingswindow/KindSizes.h"

namespace brimly {

// One row of the Metrics tab's list, in the list's coordinates.
struct MetricListRow {
  MetricKind kind;
  bool shown = true;
  Rect frame;
  Rect handleFrame;  // 16 wide at the leading edge, the row's full height
  Rect symbol;       // the drag handle or the crossed-out eye, centred in its frame
  Rect title;
  Rect toggle;  // the mini switch's track, at the trailing edge

  bool operator==(const MetricListRow&) const = default;
};

// The caption row over a section.
struct MetricListHeader {
  Rect frame;
  Rect label;                // "SHOWN" or "HIDDEN", at the leading edge
  std::optional<Rect> hint;  // "DRAG TO REORDER", at the trailing edge of the shown section

  bool operator==(const MetricListHeader&) const = default;
};

struct MetricListGeometry {
  Size size;
  MetricListHeader shownHeader;
  std::optional<MetricListHeader> hiddenHeader;  // only when something is hidden
  std::vector<MetricListRow> rows;               // the shown ones in order, then the hidden ones
  std::size_t shownCount = 0;

  // The gap a row dragged to height `y` would land in: before the first shown row whose middle
  // lies below `y`, or after the last shown row. Always 0 to `shownCount`.
  std::size_t dropDestination(double y) const;
  // Where the line that marks the gap before shown row `destination` is drawn: 2 high, centred on
  // the gap, across the row's width. Nothing when no row is shown or `destination` is past the end.
  std::optional<Rect> dropIndicator(std::size_t destination) const;

  bool operator==(const MetricListGeometry&) const = default;
};

// The list of the Metrics tab: a "SHOWN" section with the hint "DRAG TO REORDER" across from its
// caption, one row per shown metric in display order, then a "HIDDEN" section with one row per
// hidden metric, left out entirely when nothing is hidden. Rows are at least 30 high and follow
// one another without gaps; a row is a symbol (11, tertiary) in a frame 16 wide, 8 to its right
// the short title (12.5, rounded, primary when shown and secondary when hidden), and a mini switch
// at the trailing edge, all vertically centred.
namespace MetricListLayout {

inline constexpr double minimumRowHeight = 30.0;
inline constexpr double handleFrameWidth = 16.0;
inline constexpr double symbolSize = 11.0;
inline constexpr double spacing = 8.0;
inline constexpr double titleSize = 12.5;
// Room above a section's caption, and between the caption and the section's first row.
inline constexpr double headerTop = 10.0;
inline constexpr double headerBottom = 4.0;
inline constexpr double dropIndicatorHeight = 2.0;

inline constexpr const char* shownSymbol = "line.3.horizontal";
inline constexpr const char* hiddenSymbol = "eye.slash";

// The measured captions, each kind's title and the switch's track.
struct Measures {
  Size shownLabel;
  Size hint;
  Size hiddenLabel;
  KindSizes titles;
  Size toggle;
};

MetricListGeometry layout(const std::vector<MetricKind>& order, double width,
                          const Measures& measures);

}  // namespace MetricListLayout

}  // namespace brimly
