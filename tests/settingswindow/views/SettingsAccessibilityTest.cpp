#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollArea>
#include <QTest>
#include <set>

#include "AccessibleTree.h"
#include "SettingsWorld.h"
#include "core/MetricKind.h"
#include "settingswindow/views/MetricList.h"
#include "settingswindow/views/MetricsTab.h"
#include "settingswindow/views/SettingsView.h"
#include "settingswindow/views/SettingsWindow.h"
#include "settingswindow/views/TabButton.h"
#include "usage/MetricCellContent.h"
#include "usage/MetricReadout.h"

namespace brimly {
namespace {

using testing::SettingsWorld;
using Names = std::vector<std::string>;

class SettingsAccessibilityTest : public ::testing::Test {
 protected:
  SettingsAccessibilityTest() { window.show(); }

  AccessibleNode tree() { return readAccessible(window); }
  // The node of `role` named `name` under `root`, which a test needs to go on.
  const AccessibleNode& only(const AccessibleNode& root, QAccessible::Role role,
                             const std::string& name) {
    const AccessibleNode* node = findAccessible(root, role, name);
    if (node == nullptr) {
      ADD_FAILURE() << "no \"" << name << "\" in\n" << describeAccessible(root);
      static const AccessibleNode none;
      return none;
    }
    return *node;
  }
  const AccessibleNode& only(AccessibleNode&& root, QAccessible::Role role,
                             const std::string& name) = delete;

  SettingsWorld world;
  SettingsWindow window{world.settings, world.control, world.monitor};
  SettingsView& view = window.view();
};

TEST_F(SettingsAccessibilityTest, IsAWindowWithItsTitle) {
  const AccessibleNode root = tree();
  EXPECT_EQ(root.role, QAccessible::Window);
  EXPECT_EQ(root.name, "Brimly Settings");
}

TEST_F(SettingsAccessibilityTest, TheTabsArePageTabsOfAListWithTheSelectedOneMarked) {
  for (const SettingsTab tab : SettingsTab::allCases()) {
    view.setTab(tab);
    const AccessibleNode root = tree();
    const std::vector<const AccessibleNode*> lists = findAccessible(
        root, [](const AccessibleNode& node) { return node.role == QAccessible::PageTabList; });
    ASSERT_EQ(lists.size(), 1u) << describeAccessible(root);
    EXPECT_EQ(accessibleNames(*lists[0], QAccessible::PageTab),
              (Names{"General", "Metrics", "Appearance"}));
    for (const AccessibleNode& page : lists[0]->children) {
      EXPECT_TRUE(page.state.selectable);
      EXPECT_EQ(page.state.selected, page.name == tab.title()) << page.name;
    }
  }
}

TEST_F(SettingsAccessibilityTest, SelectingATabTellsAssistiveTechnologies) {
  TabButton& metrics = view.tabButton(SettingsTab::metrics);
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&metrics);
  interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(view.tab(), SettingsTab::metrics);
  EXPECT_TRUE(interface->state().selected);
}

TEST_F(SettingsAccessibilityTest, TheHeaderAndEveryTabsCaptionsAreLabels) {
  EXPECT_EQ(accessibleNames(tree(), QAccessible::StaticText),
            (Names{"Brimly", "v1.2.0", "GENERAL"}));
  view.setTab(SettingsTab::appearance);
  const Names appearance = accessibleNames(tree(), QAccessible::StaticText);
  for (const char* caption : {"LIVE PREVIEW", "ACCENT COLOR", "Green", "PANEL SIZE"}) {
    EXPECT_NE(std::find(appearance.begin(), appearance.end(), caption), appearance.end())
        << caption;
  }
  view.setTab(SettingsTab::metrics);
  const Names labels = accessibleNames(tree(), QAccessible::StaticText);
  for (const char* caption : {"LIVE PREVIEW", "SHOWN", "DRAG TO REORDER"}) {
    EXPECT_NE(std::find(labels.begin(), labels.end(), caption), labels.end()) << caption;
  }
}

TEST_F(SettingsAccessibilityTest, TheMetricsAreAListOfItemsThatSayWhereTheyStand) {
  view.setTab(SettingsTab::metrics);
  const AccessibleNode root = tree();
  const AccessibleNode& list = only(root, QAccessible::List, "Metrics");
  EXPECT_EQ(accessibleNames(list, QAccessible::ListItem),
            (Names{"CPU", "GPU", "RAM", "DISK", "TEMP", "PWR"}));
  const AccessibleNode& gpu = only(list, QAccessible::ListItem, "GPU");
  EXPECT_EQ(gpu.description.rfind("Shown, 2 of 6.", 0), 0u) << gpu.description;
  ASSERT_EQ(gpu.children.size(), 1u);
  EXPECT_EQ(gpu.children[0].role, QAccessible::CheckBox);
  EXPECT_EQ(gpu.children[0].name, "Show GPU");
  EXPECT_TRUE(gpu.children[0].state.checked);
}

TEST_F(SettingsAccessibilityTest, AHiddenMetricIsReadUnderHiddenAndTheShownCloseUp) {
  view.setTab(SettingsTab::metrics);
  world.settings.setMetric(MetricKind::disk, false);
  world.settings.setMetric(MetricKind::gpu, false);
  const AccessibleNode root = tree();
  const AccessibleNode& list = only(root, QAccessible::List, "Metrics");
  // Captions and rows in the order they are read, which is the order they are seen.
  Names read;
  for (const AccessibleNode& child : list.children) {
    if (child.showing() && child.role != QAccessible::Client) read.push_back(child.name);
  }
  EXPECT_EQ(read, (Names{"SHOWN", "DRAG TO REORDER", "CPU", "RAM", "TEMP", "PWR", "HIDDEN", "GPU",
                         "DISK"}));
  EXPECT_EQ(only(list, QAccessible::ListItem, "PWR").description.rfind("Shown, 4 of 4.", 0), 0u);
  EXPECT_EQ(only(list, QAccessible::ListItem, "GPU").description, "Hidden, 1 of 2.");
  EXPECT_EQ(only(list, QAccessible::ListItem, "DISK").description, "Hidden, 2 of 2.");
  EXPECT_FALSE(only(list, QAccessible::CheckBox, "Show DISK").state.checked);
}

TEST_F(SettingsAccessibilityTest, ReorderedRowsAreReadInTheirNewOrder) {
  view.setTab(SettingsTab::metrics);
  world.settings.setMetricOrder({MetricKind::pwr, MetricKind::cpu, MetricKind::ram});
  const AccessibleNode root = tree();
  EXPECT_EQ(accessibleNames(only(root, QAccessible::List, "Metrics"), QAccessible::ListItem),
            (Names{"PWR", "CPU", "RAM", "GPU", "DISK", "TEMP"}));
}

TEST_F(SettingsAccessibilityTest, ThePreviewReadsEachMetricsNameAndValue) {
  view.setTab(SettingsTab::metrics);
  Names expected;
  for (const MetricKind kind : world.settings.metricOrder()) {
    expected.push_back(
        MetricReadout::of(MetricCellContent::of(kind, world.monitor.current(), false)).name);
  }
  const AccessibleNode root = tree();
  EXPECT_EQ(
      accessibleNames(only(root, QAccessible::Grouping, "Live preview"), QAccessible::StaticText),
      expected);
  EXPECT_EQ(expected.front().rfind("CPU ", 0), 0u);

  // Formed when asked, so a new sample is read at once.
  world.nextSample([](testing::FakeMachine& machine) { machine.addCpuTicks(90, 10); });
  const AccessibleNode later = tree();
  EXPECT_EQ(
      accessibleNames(only(later, QAccessible::Grouping, "Live preview"), QAccessible::StaticText)
          .front(),
      "CPU 90%");
}

// Every control Tab stops at in the window, from the first tab round to it again.
std::vector<QWidget*> tabStops(QWidget& window, QWidget& first) {
  first.setFocus(Qt::TabFocusReason);
  std::vector<QWidget*> stops{&first};
  for (int i = 0; i < 100; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QWidget* now = QApplication::focusWidget();
    if (now == &first || now == nullptr || !window.isAncestorOf(now)) break;
    stops.push_back(now);
  }
  return stops;
}

TEST_F(SettingsAccessibilityTest, EveryTabStopIsNamedAndShowsInEveryTab) {
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  world.settings.setMetric(MetricKind::temp, false);
  for (const SettingsTab tab : SettingsTab::allCases()) {
    view.setTab(tab);
    const std::vector<QWidget*> stops = tabStops(window, view.tabButton(SettingsTab::general));
    std::set<std::string> named;
    for (QWidget* stop : stops) {
      const AccessibleNode node = readAccessible(*stop);
      EXPECT_FALSE(node.name.empty()) << stop->metaObject()->className();
      EXPECT_TRUE(stop->isVisible() && node.showing()) << node.name;
      named.insert(node.name);
    }
    EXPECT_EQ(named.size(), stops.size()) << "each control once a round";
    // They are all the focusable objects on show: nothing else is a Tab stop.
    const AccessibleNode root = tree();
    const std::vector<const AccessibleNode*> focusable = findAccessible(
        root, [](const AccessibleNode& node) { return node.state.focusable && node.showing(); });
    EXPECT_EQ(focusable.size(), stops.size()) << describeAccessible(root);
  }
}

TEST_F(SettingsAccessibilityTest, TheListsScrollAreaIsNoTabStop) {
  EXPECT_EQ(view.metricsTab().listArea().focusPolicy(), Qt::NoFocus);
}

}  // namespace
}  // namespace brimly
