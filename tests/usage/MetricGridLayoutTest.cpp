#include "usage/MetricGridLayout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>

namespace brimly {
namespace {

using Kinds = std::vector<MetricKind>;
using MetricGridLayout::barFillWidth;
using MetricGridLayout::layout;

constexpr double cellWidth = 172.0;
constexpr double cellHeight = 40.0;

const Kinds allSix{MetricKind::cpu,  MetricKind::gpu,  MetricKind::ram,
                   MetricKind::disk, MetricKind::temp, MetricKind::pwr};

TEST(MetricGridLayout, SingleCellIsCentredInTheMinimumWidth) {
  const GridGeometry grid = layout({MetricKind::temp}, 3, cellWidth, cellHeight);
  EXPECT_EQ(grid.size, (Size{580.0, 6.0 + cellHeight + 6.0}));
  ASSERT_EQ(grid.cells.size(), 1u);
  EXPECT_EQ(grid.cells[0].kind, MetricKind::temp);
  EXPECT_EQ(grid.cells[0].frame, (Rect{(580.0 - cellWidth) / 2.0, 6.0, cellWidth, cellHeight}));
  EXPECT_DOUBLE_EQ(grid.cells[0].frame.midX(), grid.size.width / 2.0);
}

TEST(MetricGridLayout, FourCellsInThreeColumnsCentreTheLoneSecondRowCell) {
  const Kinds four{MetricKind::cpu, MetricKind::gpu, MetricKind::ram, MetricKind::disk};
  const GridGeometry grid = layout(four, 3, cellWidth, cellHeight);
  ASSERT_EQ(grid.cells.size(), 4u);
  EXPECT_EQ(grid.size, (Size{580.0, 6.0 + cellHeight + 8.0 + cellHeight + 6.0}));
  // The full row is 540 wide, its padded form 572, centred in 580.
  EXPECT_EQ(grid.cells[0].frame, (Rect{20.0, 6.0, cellWidth, cellHeight}));
  EXPECT_EQ(grid.cells[1].frame, (Rect{204.0, 6.0, cellWidth, cellHeight}));
  EXPECT_EQ(grid.cells[2].frame, (Rect{388.0, 6.0, cellWidth, cellHeight}));
  EXPECT_EQ(grid.cells[3].kind, MetricKind::disk);
  EXPECT_EQ(grid.cells[3].frame, (Rect{204.0, 6.0 + cellHeight + 8.0, cellWidth, cellHeight}));
  EXPECT_DOUBLE_EQ(grid.cells[3].frame.midX(), grid.size.width / 2.0);
}

TEST(MetricGridLayout, SixCellsFillTwoRowsInTheUsersOrder) {
  const Kinds order{MetricKind::pwr, MetricKind::cpu,  MetricKind::temp,
                    MetricKind::gpu, MetricKind::disk, MetricKind::ram};
  const GridGeometry grid = layout(order, 3, cellWidth, cellHeight);
  ASSERT_EQ(grid.cells.size(), 6u);
  for (std::size_t i = 0; i < order.size(); ++i)
    EXPECT_EQ(grid.cells[i].kind, order[i]);
  EXPECT_EQ(grid.cells[3].frame.x, grid.cells[0].frame.x);
  EXPECT_EQ(grid.cells[5].frame.maxX(), 560.0);
  EXPECT_EQ(grid.cells[1].frame.minX() - grid.cells[0].frame.maxX(), 12.0);
  EXPECT_EQ(grid.cells[3].frame.minY() - grid.cells[0].frame.maxY(), 8.0);
}

TEST(MetricGridLayout, WideContentIsHeldAtTheMaximumAndOverflowsEvenly) {
  // Four columns of 172 are 724 points, 756 with padding: more than 620.
  const GridGeometry grid = layout(allSix, 4, cellWidth, cellHeight);
  EXPECT_EQ(grid.size.width, 620.0);
  EXPECT_EQ(grid.cells[0].frame.x, (620.0 - 756.0) / 2.0 + 16.0);
  EXPECT_DOUBLE_EQ(grid.cells[0].frame.minX() - 16.0, 620.0 - (grid.cells[3].frame.maxX() + 16.0));
  // The second row's two cells are centred under the four.
  EXPECT_DOUBLE_EQ((grid.cells[4].frame.minX() + grid.cells[5].frame.maxX()) / 2.0, 310.0);
}

TEST(MetricGridLayout, WidthBetweenTheBoundsIsTheContentsOwn) {
  // Three columns of 185: 3 × 185 + 24 + 32 = 611.
  const GridGeometry grid = layout(allSix, 3, 185.0, cellHeight);
  EXPECT_EQ(grid.size.width, 611.0);
  EXPECT_EQ(grid.cells[0].frame.x, 16.0);
}

TEST(MetricGridLayout, NoKindsOrNoColumnsGiveAnEmptyGrid) {
  EXPECT_EQ(layout({}, 3, cellWidth, cellHeight), (GridGeometry{Size{580.0, 12.0}, {}}));
  EXPECT_EQ(layout(allSix, 0, cellWidth, cellHeight), (GridGeometry{Size{580.0, 12.0}, {}}));
  EXPECT_EQ(layout(allSix, -2, cellWidth, cellHeight), (GridGeometry{Size{580.0, 12.0}, {}}));
}

TEST(MetricGridLayout, OneColumnStacksEveryCell) {
  const GridGeometry grid = layout(allSix, 1, cellWidth, cellHeight);
  ASSERT_EQ(grid.cells.size(), 6u);
  EXPECT_EQ(grid.size.height, 6 * cellHeight + 5 * 8.0 + 12.0);
  for (const CellPlacement& cell : grid.cells)
    EXPECT_EQ(cell.frame.x, 204.0);
}

TEST(CellLayout, PartsAreStackedFivePointsApart) {
  const CellGeometry cell = MetricGridLayout::cellLayout(cellWidth, 16.0);
  EXPECT_EQ(cell.header, (Rect{0.0, 0.0, cellWidth, 16.0}));
  EXPECT_EQ(cell.bar, (Rect{0.0, 21.0, cellWidth, 3.0}));
  EXPECT_EQ(cell.detail, (Rect{0.0, 29.0, cellWidth, 11.0}));
  EXPECT_EQ(cell.size, (Size{cellWidth, 40.0}));
  EXPECT_EQ(MetricGridLayout::cellHeight(16.0), 40.0);
}

TEST(CellLayout, TextsSitAtTheirEdgesCentredInTheirLines) {
  const CellGeometry cell = MetricGridLayout::cellLayout(cellWidth, 16.0);
  EXPECT_EQ(cell.labelFrame(Size{24.0, 12.0}), (Rect{0.0, 2.0, 24.0, 12.0}));
  EXPECT_EQ(cell.primaryFrame(Size{30.0, 16.0}), (Rect{142.0, 0.0, 30.0, 16.0}));
  EXPECT_EQ(cell.detailTextFrame(Size{80.0, 12.0}), (Rect{0.0, 28.5, 80.0, 12.0}));
}

TEST(BarFill, ZeroStillDrawsATwoPointStub) {
  EXPECT_EQ(barFillWidth(0.0, cellWidth), 2.0);
  const CellGeometry cell = MetricGridLayout::cellLayout(cellWidth, 16.0);
  EXPECT_EQ(cell.barFillFrame(0.0), (Rect{0.0, 21.0, 2.0, 3.0}));
}

TEST(BarFill, OneFillsTheFullCellWidth) {
  EXPECT_EQ(barFillWidth(1.0, cellWidth), cellWidth);
  const CellGeometry cell = MetricGridLayout::cellLayout(cellWidth, 16.0);
  EXPECT_EQ(cell.barFillFrame(1.0), cell.bar);
}

TEST(BarFill, ProportionalBetween) {
  EXPECT_EQ(barFillWidth(0.5, cellWidth), 86.0);
  EXPECT_EQ(barFillWidth(0.01, cellWidth), 2.0);  // 1.72 is below the stub
}

TEST(BarFill, NegativeNaNAndInfiniteValuesDrawTheStub) {
  EXPECT_EQ(barFillWidth(-0.5, cellWidth), 2.0);
  EXPECT_EQ(barFillWidth(std::nan(""), cellWidth), 2.0);
  EXPECT_EQ(barFillWidth(std::numeric_limits<double>::infinity(), cellWidth), 2.0);
  EXPECT_EQ(barFillWidth(-std::numeric_limits<double>::infinity(), cellWidth), 2.0);
}

TEST(BarFill, ValuesAboveOneAreNotClamped) {
  EXPECT_EQ(barFillWidth(1.25, cellWidth), 215.0);
}

// --- A larger panel ---

constexpr double large = 1.25;

Rect scaled(const Rect& r, double by) {
  return {r.x * by, r.y * by, r.width * by, r.height * by};
}

TEST(LargerGrid, SixCellsInThreeColumnsAreAQuarterLargerEveryWay) {
  const GridGeometry grid = layout(allSix, 3, 215.0, 50.0, large);
  // Three cells of 215 and two gaps of 15 are 675 points, 715 with the padding of 20 on each side:
  // less than the least width, 580 × 1.25.
  EXPECT_EQ(grid.size, (Size{725.0, 7.5 + 50.0 + 10.0 + 50.0 + 7.5}));
  ASSERT_EQ(grid.cells.size(), 6u);
  EXPECT_EQ(grid.cells[0].frame, (Rect{25.0, 7.5, 215.0, 50.0}));
  EXPECT_EQ(grid.cells[1].frame.minX() - grid.cells[0].frame.maxX(), 15.0);
  EXPECT_EQ(grid.cells[3].frame.minY() - grid.cells[0].frame.maxY(), 10.0);
  EXPECT_EQ(grid.cells[5].frame.maxX(), 700.0);
}

TEST(LargerGrid, EveryLengthIsTheUsualOneTimesTheScale) {
  const Kinds four{MetricKind::cpu, MetricKind::gpu, MetricKind::ram, MetricKind::disk};
  for (const Kinds& kinds : {allSix, four, Kinds{MetricKind::temp}, Kinds{}}) {
    for (int columns : {1, 2, 3, 4}) {
      const GridGeometry usual = layout(kinds, columns, cellWidth, cellHeight);
      const GridGeometry larger =
          layout(kinds, columns, cellWidth * large, cellHeight * large, large);
      EXPECT_EQ(larger.size, (Size{usual.size.width * large, usual.size.height * large}))
          << kinds.size() << " kinds in " << columns << " columns";
      ASSERT_EQ(larger.cells.size(), usual.cells.size());
      for (std::size_t i = 0; i < usual.cells.size(); ++i) {
        EXPECT_EQ(larger.cells[i].kind, usual.cells[i].kind);
        EXPECT_EQ(larger.cells[i].frame, scaled(usual.cells[i].frame, large))
            << kinds.size() << " kinds in " << columns << " columns, cell " << i;
      }
    }
  }
}

TEST(LargerGrid, EveryPartOfACellIsTheUsualOneTimesTheScale) {
  const CellGeometry usual = MetricGridLayout::cellLayout(cellWidth, 16.0);
  const CellGeometry larger = MetricGridLayout::cellLayout(cellWidth * large, 20.0, large);
  EXPECT_EQ(larger.header, (Rect{0.0, 0.0, 215.0, 20.0}));
  EXPECT_EQ(larger.bar, (Rect{0.0, 26.25, 215.0, 3.75}));
  EXPECT_EQ(larger.detail, (Rect{0.0, 36.25, 215.0, 13.75}));
  EXPECT_EQ(larger.size, (Size{215.0, 50.0}));
  EXPECT_EQ(MetricGridLayout::cellHeight(20.0, large), 50.0);
  for (const auto& [a, b] :
       {std::pair{larger.header, usual.header}, std::pair{larger.bar, usual.bar},
        std::pair{larger.detail, usual.detail}})
    EXPECT_EQ(a, scaled(b, large));
  // The texts keep their places in the larger lines.
  EXPECT_EQ(larger.labelFrame({30.0, 15.0}), scaled(usual.labelFrame({24.0, 12.0}), large));
  EXPECT_EQ(larger.detailTextFrame({100.0, 15.0}),
            scaled(usual.detailTextFrame({80.0, 12.0}), large));
}

TEST(LargerGrid, TheStubOfAZeroIsAQuarterLongerToo) {
  EXPECT_EQ(barFillWidth(0.0, 215.0, large), 2.5);
  EXPECT_EQ(barFillWidth(std::nan(""), 215.0, large), 2.5);
  EXPECT_EQ(barFillWidth(0.5, 215.0, large), 107.5);
  const CellGeometry cell = MetricGridLayout::cellLayout(215.0, 20.0, large);
  EXPECT_EQ(cell.barFillFrame(0.0), (Rect{0.0, 26.25, 2.5, 3.75}));
  EXPECT_EQ(cell.barFillFrame(1.0), cell.bar);
}

}  // namespace
}  // namespace brimly
