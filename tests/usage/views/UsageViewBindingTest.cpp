#include "usage/views/UsageViewBinding.h"

#include <gtest/gtest.h>

#include <memory>

#include "FakeKeyValueStore.h"
#include "FakePlatform.h"
#include "ManualScheduler.h"
#include "panel/PanelState.h"
#include "sampling/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "usage/views/UsageView.h"

namespace brimly {
namespace {

using testing::FakeMachine;
using testing::FakePlatform;
using testing::ManualScheduler;

// Settings and a monitor that tell how many connections listen to their announcements.
class ListenedSettings : public AppSettings {
 public:
  using AppSettings::AppSettings;
  int listeners() const {
    return receivers(SIGNAL(metricOrderChanged())) + receivers(SIGNAL(useFahrenheitChanged(bool))) +
           receivers(SIGNAL(showTrendChanged(bool)));
  }
};

class ListenedMonitor : public SystemMonitor {
 public:
  using SystemMonitor::SystemMonitor;
  int listeners() const { return receivers(SIGNAL(sampleApplied())); }
};

class ListenedPanelState : public PanelState {
 public:
  int listeners() const { return receivers(SIGNAL(isOpenAssigned(bool))); }
};

class UsageViewBindingTest : public ::testing::Test {
 protected:
  UsageViewBindingTest() {
    monitor.start();
    scheduler.advanceBy(0);  // the first sample
  }

  const MetricCellContent* cell(const UsageView& view, std::string_view label) const {
    for (const auto& content : view.cells()) {
      if (content.label == label) return &content;
    }
    return nullptr;
  }

  ManualScheduler scheduler;
  FakePlatform platform{FakeMachine::typicalLaptop(), scheduler};
  ListenedMonitor monitor{platform, scheduler};
  FakeKeyValueStore store;
  ListenedSettings settings{store};
  ListenedPanelState panel;
};

TEST_F(UsageViewBindingTest, TakesTheCurrentStateAtOnce) {
  settings.setMetricOrder({MetricKind::pwr, MetricKind::ram});
  std::unique_ptr<UsageView> view(makePanelGrid(monitor, settings, panel));
  ASSERT_EQ(view->cells().size(), 2u);
  EXPECT_EQ(view->cells()[0],
            MetricCellContent::of(MetricKind::pwr, monitor.current(), settings.useFahrenheit()));
  EXPECT_EQ(view->cells()[1].label, "RAM");
}

TEST_F(UsageViewBindingTest, TakesTheChosenPanelSize) {
  std::unique_ptr<UsageView> regular(makePanelGrid(monitor, settings, panel));
  EXPECT_EQ(regular->scale(), 1.0);
  settings.setPanelSize(PanelSize::large);
  std::unique_ptr<UsageView> large(makePanelGrid(monitor, settings, panel));
  EXPECT_EQ(large->scale(), 1.25);
  EXPECT_EQ(large->geometry().cells[0].frame.width, 215.0);
}

TEST_F(UsageViewBindingTest, PanelGridHasThreeColumnsOf172PointCells) {
  std::unique_ptr<UsageView> view(makePanelGrid(monitor, settings, panel));
  ASSERT_EQ(view->geometry().cells.size(), 6u);
  EXPECT_EQ(view->geometry().cells[0].frame.width, 172.0);
  EXPECT_EQ(view->geometry().cells[2].frame.y, view->geometry().cells[0].frame.y);
  EXPECT_GT(view->geometry().cells[3].frame.y, view->geometry().cells[0].frame.y);
}

TEST_F(UsageViewBindingTest, WhileThePanelIsOpenFollowsEveryAppliedSample) {
  panel.setOpen(true);
  std::unique_ptr<UsageView> view(makePanelGrid(monitor, settings, panel));
  ASSERT_NE(cell(*view, "TEMP"), nullptr);
  EXPECT_EQ(cell(*view, "TEMP")->primary, "51°C");
  platform.change([](FakeMachine& machine) { machine.temperatureSensors[0].celsius = 70.4; });
  scheduler.advanceBy(5.0);
  EXPECT_EQ(cell(*view, "TEMP")->primary, "70°C");
}

TEST_F(UsageViewBindingTest, WhileThePanelIsClosedSamplesWait) {
  std::unique_ptr<UsageView> view(makePanelGrid(monitor, settings, panel));
  platform.change([](FakeMachine& machine) { machine.temperatureSensors[0].celsius = 70.4; });
  scheduler.advanceBy(5.0);
  ASSERT_EQ(MetricCellContent::of(MetricKind::temp, monitor.current(), false).primary, "70°C");
  EXPECT_EQ(cell(*view, "TEMP")->primary, "51°C");
}

TEST_F(UsageViewBindingTest, OpeningTheClosedPanelShowsTheLatestSampleAtOnce) {
  std::unique_ptr<UsageView> view(makePanelGrid(monitor, settings, panel));
  platform.change([](FakeMachine& machine) { machine.temperatureSensors[0].celsius = 70.4; });
  scheduler.advanceBy(5.0);
  panel.setOpen(true);
  EXPECT_EQ(cell(*view, "TEMP")->primary, "70°C");
  EXPECT_FALSE(view->isAnimating());  // hidden: it takes the value without a glide
}

TEST_F(UsageViewBindingTest, FollowsTheShownMetricsAndTheUnitEvenWhileClosed) {
  std::unique_ptr<UsageView> view(makePanelGrid(monitor, settings, panel));
  settings.setMetric(MetricKind::gpu, false);
  EXPECT_EQ(view->cells().size(), 5u);
  EXPECT_EQ(cell(*view, "GPU"), nullptr);
  settings.setUseFahrenheit(true);
  EXPECT_EQ(cell(*view, "TEMP")->primary, "124°F");
}

// The number of points of the trend line behind the bar of `kind`.
std::size_t trendPoints(const UsageView& view, MetricKind kind) {
  std::size_t points = 0;
  for (const auto& run : view.trendLine(kind))
    points += run.size();
  return points;
}

TEST_F(UsageViewBindingTest, TheTrendFollowsTheSwitchAndIsOffByDefault) {
  std::unique_ptr<UsageView> view(makePanelGrid(monitor, settings, panel));
  EXPECT_FALSE(view->showsTrend());
  settings.setShowTrend(true);
  EXPECT_TRUE(view->showsTrend());
  settings.setShowTrend(false);
  EXPECT_FALSE(view->showsTrend());
}

TEST_F(UsageViewBindingTest, AGridMadeWithTheTrendOnShowsIt) {
  settings.setShowTrend(true);
  panel.setOpen(true);
  std::unique_ptr<UsageView> view(makePanelGrid(monitor, settings, panel));
  EXPECT_TRUE(view->showsTrend());
  EXPECT_EQ(trendPoints(*view, MetricKind::cpu), 1u);  // the one sample taken so far
}

TEST_F(UsageViewBindingTest, AnOpenGridsTrendIsTheMonitorsMinute) {
  panel.setOpen(true);
  std::unique_ptr<UsageView> view(makePanelGrid(monitor, settings, panel));
  scheduler.advanceBy(20.0);
  settings.setShowTrend(true);  // drawn at once, from what the monitor already holds
  EXPECT_EQ(trendPoints(*view, MetricKind::cpu), 5u);
  scheduler.advanceBy(5.0);
  EXPECT_EQ(trendPoints(*view, MetricKind::cpu), monitor.history().size());
  // The fake machine has a GPU reading all along: its line is as long.
  EXPECT_EQ(trendPoints(*view, MetricKind::gpu), 6u);
}

TEST_F(UsageViewBindingTest, AClosedGridsTrendWaitsForTheOpening) {
  settings.setShowTrend(true);
  std::unique_ptr<UsageView> view(makePanelGrid(monitor, settings, panel));
  scheduler.advanceBy(60.0);
  EXPECT_EQ(trendPoints(*view, MetricKind::cpu), 1u);  // not fed while closed
  panel.setOpen(true);
  EXPECT_EQ(trendPoints(*view, MetricKind::cpu), 13u);  // a minute at the closed rate
}

TEST_F(UsageViewBindingTest, AGridThatIsGoneIsNoLongerFed) {
  auto view = std::unique_ptr<UsageView>(makePanelGrid(monitor, settings, panel));
  EXPECT_EQ(monitor.listeners(), 1);
  EXPECT_EQ(settings.listeners(), 3);
  EXPECT_EQ(panel.listeners(), 1);
  view.reset();
  EXPECT_EQ(monitor.listeners(), 0);
  EXPECT_EQ(settings.listeners(), 0);
  EXPECT_EQ(panel.listeners(), 0);
}

}  // namespace
}  // namespace brimly
