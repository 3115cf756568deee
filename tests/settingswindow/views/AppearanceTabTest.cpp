#include "settingswindow/views/AppearanceTab.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "AccessibleTree.h"
#include "SettingsWorld.h"
#include "settingswindow/views/AccentSwatch.h"
#include "settingswindow/views/AppearancePreview.h"
#include "settingswindow/views/SettingRow.h"
#include "settingswindow/views/SizeSegment.h"
#include "ui/Accent.h"
#include "ui/Switch.h"
#include "usage/AccentColors.h"
#include "usage/views/UsageView.h"

namespace brimly {
namespace {

using testing::FakeMachine;
using testing::SettingsWorld;

class AppearanceTabTest : public ::testing::Test {
 protected:
  AppearanceTabTest() {
    tab.resize(324, 329);
    tab.show();
  }

  AccentSwatch& swatch(AccentChoice choice) const {
    for (AccentSwatch* swatch : tab.swatches()) {
      if (swatch->choice() == choice) return *swatch;
    }
    throw std::logic_error("no such swatch");
  }
  std::vector<AccentChoice> chosenAccents() const {
    std::vector<AccentChoice> chosen;
    for (AccentSwatch* swatch : tab.swatches()) {
      if (swatch->isChosen()) chosen.push_back(swatch->choice());
    }
    return chosen;
  }

  SettingsWorld world;
  AppearanceTab tab{world.settings, world.monitor};
};

TEST_F(AppearanceTabTest, ShowsTheDefaultsGreenRegularAndNoTrend) {
  ASSERT_EQ(tab.swatches().size(), accentChoices.size());
  EXPECT_EQ(chosenAccents(), std::vector{AccentChoice::green});
  EXPECT_TRUE(tab.sizes()[0]->isChosen());
  EXPECT_FALSE(tab.sizes()[1]->isChosen());
  EXPECT_FALSE(tab.trendRow().isOn());
  EXPECT_EQ(tab.trendRow().title(), QStringLiteral("Show trend"));
}

TEST_F(AppearanceTabTest, ClickingASwatchStoresTheAccentAndMarksIt) {
  QTest::mouseClick(&swatch(AccentChoice::purple), Qt::LeftButton);
  EXPECT_EQ(world.settings.accentColor(), AccentChoice::purple);
  EXPECT_EQ(world.store.readString(AppSettings::accentColorKey), "purple");
  EXPECT_EQ(chosenAccents(), std::vector{AccentChoice::purple});
}

TEST_F(AppearanceTabTest, SpaceOrReturnOnAFocusedSwatchChoosesIt) {
  QTest::keyClick(&swatch(AccentChoice::orange), Qt::Key_Space);
  EXPECT_EQ(world.settings.accentColor(), AccentChoice::orange);
  QTest::keyClick(&swatch(AccentChoice::system), Qt::Key_Return);
  EXPECT_EQ(world.settings.accentColor(), AccentChoice::system);
}

TEST_F(AppearanceTabTest, FollowsChangesMadeElsewhere) {
  world.settings.setAccentColor(AccentChoice::graphite);
  world.settings.setPanelSize(PanelSize::large);
  world.settings.setShowTrend(true);
  EXPECT_EQ(chosenAccents(), std::vector{AccentChoice::graphite});
  EXPECT_FALSE(tab.sizes()[0]->isChosen());
  EXPECT_TRUE(tab.sizes()[1]->isChosen());
  EXPECT_TRUE(tab.trendRow().isOn());
}

TEST_F(AppearanceTabTest, TheSizesAndTheTrendSwitchWriteTheSettings) {
  QTest::mouseClick(tab.sizes()[1], Qt::LeftButton);
  EXPECT_EQ(world.settings.panelSize(), PanelSize::large);
  EXPECT_EQ(world.store.readString(AppSettings::panelSizeKey), "large");
  QTest::keyClick(tab.sizes()[0], Qt::Key_Space);
  EXPECT_EQ(world.settings.panelSize(), PanelSize::regular);
  QTest::keyClick(&tab.trendRow().toggle(), Qt::Key_Space);
  EXPECT_TRUE(world.settings.showTrend());
  EXPECT_TRUE(tab.trendRow().isOn());
}

TEST_F(AppearanceTabTest, EverySwatchIsANamedRadioButtonThatSaysWhetherItIsChosen) {
  world.settings.setAccentColor(AccentChoice::blue);
  for (AccentSwatch* each : tab.swatches()) {
    const AccessibleNode node = readAccessible(*each);
    EXPECT_EQ(node.role, QAccessible::RadioButton);
    EXPECT_EQ(node.name, "Accent colour: " + std::string(displayName(each->choice())));
    EXPECT_TRUE(node.state.checkable);
    EXPECT_EQ(node.state.checked, each->choice() == AccentChoice::blue) << node.name;
    EXPECT_TRUE(node.state.focusable);
  }
  const AccessibleNode large = readAccessible(*tab.sizes()[1]);
  EXPECT_EQ(large.role, QAccessible::RadioButton);
  EXPECT_EQ(large.name, "Panel size: Large");
  const AccessibleNode trend = readAccessible(tab.trendRow().toggle());
  EXPECT_EQ(trend.role, QAccessible::CheckBox);
  EXPECT_EQ(trend.name, "Show trend");
}

TEST_F(AppearanceTabTest, TabWalksTheSwatchesThenTheSizesThenTheSwitch) {
  std::vector<QWidget*> expected(tab.swatches().begin(), tab.swatches().end());
  expected.insert(expected.end(), tab.sizes().begin(), tab.sizes().end());
  expected.push_back(&tab.trendRow().toggle());
  // The focus chain holds every widget; Tab stops only at those that take the focus with it.
  std::vector<QWidget*> stops;
  for (QWidget* next = expected.front(); stops.size() < expected.size();
       next = next->nextInFocusChain()) {
    if (next->focusPolicy() & Qt::TabFocus) stops.push_back(next);
  }
  EXPECT_EQ(stops, expected);
}

TEST_F(AppearanceTabTest, TheSystemSwatchShowsGreenWhereTheDesktopGivesNoAccent) {
  // The offscreen platform has no desktop theme.
  EXPECT_EQ(swatch(AccentChoice::system).color(), Theme::accent);
  EXPECT_EQ(swatch(AccentChoice::blue).color(), AccentColors::of(AccentChoice::blue));
}

TEST_F(AppearanceTabTest, ThePreviewShowsEverySampleTheMonitorApplies) {
  world.nextSample([](FakeMachine& machine) { machine.addCpuTicks(700, 300); });
  std::vector<MetricCellContent> expected;
  for (const MetricKind kind : world.settings.metricOrder()) {
    expected.push_back(MetricCellContent::of(kind, world.monitor.current(), false));
  }
  EXPECT_EQ(tab.preview().grid().cells(), expected);
}

TEST_F(AppearanceTabTest, ThePreviewFollowsTheShownMetrics) {
  world.settings.setMetric(MetricKind::gpu, false);
  EXPECT_EQ(tab.preview().grid().cells().size(), world.settings.metricOrder().size());
}

TEST_F(AppearanceTabTest, ThePreviewDrawsTheTrendOnceItIsSwitchedOn) {
  world.nextSample([](FakeMachine& machine) { machine.addCpuTicks(700, 300); });
  world.nextSample([](FakeMachine& machine) { machine.addCpuTicks(200, 800); });
  EXPECT_FALSE(tab.preview().grid().showsTrend());
  EXPECT_TRUE(tab.preview().grid().trendLine(MetricKind::cpu).empty());
  QTest::keyClick(&tab.trendRow().toggle(), Qt::Key_Space);
  EXPECT_TRUE(tab.preview().grid().showsTrend());
  // The samples the monitor already holds are drawn at once, without waiting for the next.
  EXPECT_FALSE(tab.preview().grid().trendLine(MetricKind::cpu).empty());
  // The preview's grid stays at the regular size: the preview itself draws it larger.
  world.settings.setPanelSize(PanelSize::large);
  EXPECT_EQ(tab.preview().grid().scale(), 1.0);
}

TEST_F(AppearanceTabTest, ALargePanelIsPreviewedAQuarterLargerInTheSameRoom) {
  const double regular = tab.preview().gridScale();
  const int height = tab.preview().height();
  world.settings.setPanelSize(PanelSize::large);
  EXPECT_DOUBLE_EQ(tab.preview().gridScale(), regular * 1.25);
  EXPECT_EQ(tab.preview().height(), height);
  EXPECT_LE(tab.preview().grid().sizeHint().width() * tab.preview().gridScale(),
            tab.preview().width());
}

TEST_F(AppearanceTabTest, EverythingFitsInTheTab) {
  EXPECT_LE(tab.placement().trendRow.maxY(), tab.height());
  EXPECT_LE(tab.placement().swatches.back().maxX(), tab.width());
}

}  // namespace
}  // namespace brimly
