#pragma once

#include "core/Geometry.h"

namespace brimly {

struct MetricsTabGeometry {
  Rect previewLabel;  // "LIVE PREVIEW"
  Rect preview;
  Rect list;  // down to the bottom of the tab's area; the list scrolls inside it

  bool operator==(const MetricsTabGeometry&) const = default;
};

// The Metrics tab: the "LIVE PREVIEW" caption, the preview across the full width 8 below it, and
// the list of metrics filling the rest, 6 below the preview (its first caption keeps a little room
// of its own above it).
namespace MetricsTabLayout {

inline constexpr double previewTop = 8.0;
inline constexpr double listTop = 6.0;

MetricsTabGeometry layout(const Rect& area, Size previewLabel, double previewHeight);

}  // namespace MetricsTabLayout

}  // namespace brimly
