#include "usage/MetricGridLayout.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "core/MetricLayout.h"

namespace brimly {

namespace MetricGridLayout {

namespace {

double rowWidth(std::size_t cellCount, double cellWidth) {
  if (cellCount == 0) return 0.0;
  const auto n = static_cast<double>(cellCount);
  return n * cellWidth + (n - 1.0) * cellSpacing;
}

}  // namespace

GridGeometry layout(const std::vector<MetricKind>& kinds, int columns, double cellWidth,
                    double cellHeight) {
  const auto rows = MetricLayout::rows(kinds, columns);

  double stackWidth = 0.0;
  for (const auto& row : rows)
    stackWidth = std::max(stackWidth, rowWidth(row.size(), cellWidth));
  const auto rowCount = static_cast<double>(rows.size());
  const double stackHeight =
      rows.empty() ? 0.0 : rowCount * cellHeight + (rowCount - 1.0) * rowSpacing;

  const double paddedWidth = stackWidth + 2.0 * horizontalPadding;
  GridGeometry grid;
  grid.size = Size{std::clamp(paddedWidth, minimumWidth, maximumWidth),
                   stackHeight + 2.0 * verticalPadding};

  // The padded content is centred in the grid's frame; each row is centred in the stack.
  const double stackX = (grid.size.width - paddedWidth) / 2.0 + horizontalPadding;
  double y = verticalPadding;
  for (const auto& row : rows) {
    double x = stackX + (stackWidth - rowWidth(row.size(), cellWidth)) / 2.0;
    for (const MetricKind kind : row) {
      grid.cells.push_back(CellPlacement{kind, Rect{x, y, cellWidth, cellHeight}});
      x += cellWidth + cellSpacing;
    }
    y += cellHeight + rowSpacing;
  }
  return grid;
}

CellGeometry cellLayout(double cellWidth, double headerHeight) {
  CellGeometry cell;
  cell.header = Rect{0.0, 0.0, cellWidth, headerHeight};
  cell.bar = Rect{0.0, cell.header.maxY() + cellPartSpacing, cellWidth, barHeight};
  cell.detail = Rect{0.0, cell.bar.maxY() + cellPartSpacing, cellWidth, detailHeight};
  cell.size = Size{cellWidth, cell.detail.maxY()};
  return cell;
}

double cellHeight(double headerHeight) {
  return headerHeight + cellPartSpacing + barHeight + cellPartSpacing + detailHeight;
}

double barFillWidth(double value, double cellWidth) {
  const double width = value * cellWidth;
  if (!std::isfinite(width)) return minimumBarFill;
  return std::max(width, minimumBarFill);
}

}  // namespace MetricGridLayout

Rect CellGeometry::labelFrame(Size textSize) const {
  return Rect{header.x, header.midY() - textSize.height / 2.0, textSize.width, textSize.height};
}

Rect CellGeometry::primaryFrame(Size textSize) const {
  return Rect{header.maxX() - textSize.width, header.midY() - textSize.height / 2.0, textSize.width,
              textSize.height};
}

Rect CellGeometry::detailTextFrame(Size textSize) const {
  return Rect{detail.x, detail.midY() - textSize.height / 2.0, textSize.width, textSize.height};
}

Rect CellGeometry::barFillFrame(double value) const {
  return Rect{bar.x, bar.y, MetricGridLayout::barFillWidth(value, bar.width), bar.height};
}

}  // namespace brimly
