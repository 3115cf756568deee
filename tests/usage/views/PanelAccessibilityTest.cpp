#include <gtest/gtest.h>

#include "AccessibleTree.h"
#include "panel/PanelState.h"
#include "panel/views/PanelWindow.h"
#include "panel/views/QtGeometry.h"
#include "usage/views/UsageView.h"

namespace brimly {
namespace {

using Names = std::vector<std::string>;

const MetricSample chargingLaptop{.cpu = 0.31,
                                  .gpu = 0.07,
                                  .memoryUsedBytes = 8ull << 30,
                                  .memoryTotalBytes = 16ull << 30,
                                  .memory = 0.5,
                                  .powerState = PowerState::charging(12.0),
                                  .batteryPercent = 80,
                                  .temperatureC = 51.0,
                                  .systemPowerWatts = std::nullopt};

TEST(PanelAccessibility, ThePanelIsAWindowWithItsTitle) {
  PanelState state;
  PanelWindow window(state, Size{185.0, 32.0}, true);
  window.setWindowTitle("Brimly");
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&window);
  EXPECT_EQ(interface->role(), QAccessible::Window);
  EXPECT_EQ(interface->text(QAccessible::Name), "Brimly");
}

TEST(PanelAccessibility, EachCellIsReadAsItsNameAndValueWithItsDetailLine) {
  UsageView grid(3, UsageView::panelCellWidth);
  grid.setSample(chargingLaptop);
  grid.setMetricOrder({MetricKind::cpu, MetricKind::ram, MetricKind::temp, MetricKind::gpu});
  const AccessibleNode tree = readAccessible(grid);
  EXPECT_EQ(accessibleNames(tree, QAccessible::StaticText, true),
            (Names{"CPU 31%", "RAM 50%", "TEMP 51°C", "GPU 7%"}));
  ASSERT_EQ(tree.children.size(), 4u);
  EXPECT_EQ(tree.children[0].description, "");
  EXPECT_EQ(tree.children[1].description, grid.cells()[1].secondary);

  // In Fahrenheit, and at the cell's place on the screen.
  grid.setUseFahrenheit(true);
  QAccessibleInterface* temp = QAccessible::queryAccessibleInterface(&grid)->child(2);
  EXPECT_EQ(temp->text(QAccessible::Name).toStdString(), "TEMP 124°F");
  const QRect cell = toQRectF(grid.geometry().cells[2].frame).toAlignedRect();
  EXPECT_EQ(temp->rect(), QRect(grid.mapToGlobal(cell.topLeft()), cell.size()));
}

TEST(PanelAccessibility, TheCellsAreHiddenWhileTheGridIs) {
  UsageView grid(3, UsageView::panelCellWidth);
  grid.setSample(chargingLaptop);
  EXPECT_TRUE(accessibleNames(readAccessible(grid), QAccessible::StaticText).empty());
  grid.show();
  EXPECT_EQ(accessibleNames(readAccessible(grid), QAccessible::StaticText).size(), 6u);
}

}  // namespace
}  // namespace brimly
