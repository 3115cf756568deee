#include "settingswindow/MetricPreviewLayout.h"

#include <algorithm>
#include <cmath>

#include "core/MetricLayout.h"

namespace brimly::MetricPreviewLayout {

MetricPreviewGeometry layout(const std::vector<MetricKind>& order, double width, double cellWidth,
                             const KindSizes& titles) {
  MetricPreviewGeometry preview;
  double y = padding;
  bool first = true;
  for (const std::vector<MetricKind>& row : MetricLayout::rows(order, columns)) {
    if (!first) y += rowSpacing;
    first = false;
    double x = padding;
    double rowHeight = 0.0;
    for (const MetricKind kind : row) {
      const Size title = titles[kind];
      PreviewCell cell{kind, {}, {}, {}};
      cell.title = Rect{x, y, title.width, title.height};
      cell.track = Rect{x, cell.title.maxY() + titleBarSpacing, cellWidth, barHeight};
      cell.frame = Rect{x, y, std::max(cellWidth, title.width), cell.track.maxY() - y};
      rowHeight = std::max(rowHeight, cell.frame.height);
      x = cell.frame.maxX() + cellSpacing;
      preview.cells.push_back(cell);
    }
    y += rowHeight;
  }
  preview.size = Size{width, y + padding};
  return preview;
}

double fillWidth(double fill, double cellWidth) {
  const double length = cellWidth * fill;
  if (!std::isfinite(length)) return minimumFill;
  return std::max(length, minimumFill);
}

Rect fillFrame(const PreviewCell& cell, double fill) {
  return Rect{cell.track.x, cell.track.y, fillWidth(fill, cell.track.width), cell.track.height};
}

}  // namespace brimly::MetricPreviewLayout
