#include "usage/MetricGridLayout.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "core/MetricLayout.h"

namespace brimly {

namespace MetricGridLayout {

namespace {

double rowWidth(std::size_t cellCount, double cellWidth, double spacing) {
  if (cellCount == 0) return 0.0;
  const auto n = static_cast<double>(cellCount);
  return n * cellWidth + (n - 1.0) * spacing;
}

}  // namespace

GridGeometry layout(const std::vector<MetricKind>& kinds, int columns, double cellWidth,
                    double cellHeight, double scale) {
  const auto rows = MetricLayout::rows(kinds, columns);
  const double spacing = cellSpacing * scale;

  double stackWidth = 0.0;
  for (const auto& row : rows)
    stackWidth = std::max(stackWidth, rowWidth(row.size(), cellWidth, spacing));
  const auto rowCount = static_cast<double>(rows.size());
  const double stackHeight =
      rows.empty() ? 0.0 : rowCount * cellHeight + (rowCount - 1.0) * rowSpacing * scale;

  const double paddedWidth = stackWidth + 2.0 * horizontalPadding * scale;
  GridGeometry grid;
  grid.size = Size{std::clamp(paddedWidth, minimumWidth * scale, maximumWidth * scale),
                   stackHeight + 2.0 * verticalPadding * scale};

  // The padded content is centred in the grid's frame; each row is centred in the stack.
  const double stackX = (grid.size.width - paddedWidth) / 2.0 + horizontalPadding * scale;
  double y = verticalPadding * scale;
  for (const auto& row : rows) {
    double x = stackX + (stackWidth - rowWidth(row.size(), cellWidth, spacing)) / 2.0;
    for (const MetricKind kind : row) {
      grid.cells.push_back(CellPlacement{kind, Rect{x, y, cellWidth, cellHeight}});
      x += cellWidth + spacing;
    }
    y += cellHeight + rowSpacing * scale;
  }
  return grid;
}

CellGeometry cellLayout(double cellWidth, double headerHeight, double scale) {
  const double spacing = cellPartSpacing * scale;
  CellGeometry cell;
  cell.header = Rect{0.0, 0.0, cellWidth, headerHeight};
  cell.bar = Rect{0.0, cell.header.maxY() + spacing, cellWidth, barHeight * scale};
  cell.detail = Rect{0.0, cell.bar.maxY() + spacing, cellWidth, detailHeight * scale};
  cell.size = Size{cellWidth, cell.detail.maxY()};
  cell.scale = scale;
  return cell;
}

double cellHeight(double headerHeight, double scale) {
  return headerHeight + (cellPartSpacing + barHeight + cellPartSpacing + detailHeight) * scale;
}

double barFillWidth(double value, double cellWidth, double scale) {
  const double stub = minimumBarFill * scale;
  const double width = value * cellWidth;
  if (!std::isfinite(width)) return stub;
  return std::max(width, stub);
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
  return Rect{bar.x, bar.y, MetricGridLayout::barFillWidth(value, bar.width, scale), bar.height};
}

}  // namespace brimly
