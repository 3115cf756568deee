#include "controlpanel/ControlPanelActions.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>
#include <memory>
#include <string>
#include <vector>

#include "FakeControlPanelPorts.h"
#include "FakeKeyValueStore.h"
#include "FakeSamplingRateControl.h"
#include "ManualScheduler.h"
#include "controlpanel/ControlPanelModel.h"
#include "panel/PanelState.h"
#include "panel/ProximityController.h"
#include "settings/AppSettings.h"

namespace brimly {
namespace {

using testing::FakeLoginItem;
using testing::FakeSamplingRateControl;
using testing::ManualScheduler;

class ControlPanelActionsTest : public ::testing::Test {
 protected:
  ControlPanelActionsTest() {
    services = std::make_shared<ControlPanelServices>(ControlPanelServices{
        settings, proximity, loginItem, [this](const std::string& line) { logged.push_back(line); },
        [this] { calls.push_back("close card"); }, [this] { calls.push_back("settings"); },
        [this] { calls.push_back("about"); }});
    connectControlPanelActions(model, services);
  }

  FakeKeyValueStore store;
  AppSettings settings{store};
  PanelState panel;
  FakeSamplingRateControl monitor;
  ManualScheduler scheduler;
  bool pointerInside = false;
  ProximityController proximity{panel, monitor, scheduler, [this] { return pointerInside; }};
  FakeLoginItem loginItem;
  ControlPanelModel model{false, false, false, "1.2.3"};
  std::vector<std::string> logged;
  std::vector<std::string> calls;
  std::shared_ptr<ControlPanelServices> services;
};

TEST_F(ControlPanelActionsTest, PinningOpensThePanelStoresThePinAndShowsItInTheModel) {
  ControlPanelModel::invoke(model.onTogglePin, true);
  EXPECT_TRUE(proximity.isPinned());
  EXPECT_TRUE(settings.isPinned());
  EXPECT_TRUE(model.isPinned());
  EXPECT_TRUE(panel.isOpen());
  ASSERT_FALSE(store.writes.empty());
  EXPECT_EQ(store.writes.back().key, "isPinned");
  EXPECT_EQ(store.writes.back().value, FakeKeyValueStore::Value(true));
  EXPECT_EQ(monitor.restartedIntervals, std::vector<double>{1.0});
}

TEST_F(ControlPanelActionsTest, UnpinningWithThePointerAwayClosesAtOnceAndSlowsSampling) {
  ControlPanelModel::invoke(model.onTogglePin, true);
  ControlPanelModel::invoke(model.onTogglePin, false);
  EXPECT_FALSE(panel.isOpen());
  EXPECT_FALSE(model.isPinned());
  EXPECT_EQ(store.writes.back().value, FakeKeyValueStore::Value(false));
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{1.0, 5.0}));
}

TEST_F(ControlPanelActionsTest, FahrenheitIsStoredThenShownInTheModel) {
  std::vector<bool> modelSawStored;
  QObject::connect(&model, &ControlPanelModel::changed,
                   [&] { modelSawStored.push_back(settings.useFahrenheit()); });
  ControlPanelModel::invoke(model.onToggleFahrenheit, true);
  EXPECT_TRUE(settings.useFahrenheit());
  EXPECT_TRUE(model.useFahrenheit());
  EXPECT_EQ(store.writes.back().key, "useFahrenheit");
  EXPECT_EQ(modelSawStored, std::vector<bool>{true});
}

TEST_F(ControlPanelActionsTest, FahrenheitThatCouldNotBeStoredIsNotShown) {
  store.writeFailure = "cannot write /home/ann/.config/brimly/Brimly.conf: No space left on device";
  std::vector<bool> modelShowed;
  QObject::connect(&model, &ControlPanelModel::changed,
                   [&] { modelShowed.push_back(model.useFahrenheit()); });
  ControlPanelModel::invoke(model.onToggleFahrenheit, true);
  EXPECT_FALSE(settings.useFahrenheit());
  // Announced even though unchanged, so that a switch that moved on its own moves back.
  EXPECT_EQ(modelShowed, std::vector<bool>{false});
}

TEST_F(ControlPanelActionsTest, PinThatCouldNotBeStoredIsNotTaken) {
  store.writeFailure = "disk full";
  ControlPanelModel::invoke(model.onTogglePin, true);
  EXPECT_FALSE(proximity.isPinned());
  EXPECT_FALSE(model.isPinned());
  EXPECT_FALSE(panel.isOpen());
  EXPECT_TRUE(monitor.restartedIntervals.empty());
}

TEST_F(ControlPanelActionsTest, ALoginItemThatRegistersIsShownOn) {
  ControlPanelModel::invoke(model.onToggleLaunch, true);
  EXPECT_EQ(loginItem.requests, std::vector<bool>{true});
  EXPECT_TRUE(model.launchAtLogin());
  EXPECT_TRUE(logged.empty());
}

TEST_F(ControlPanelActionsTest, AFailedToggleLogsExactlyOneLineAndShowsTheRealState) {
  loginItem.failure = "Operation not permitted";
  ControlPanelModel::invoke(model.onToggleLaunch, true);
  ASSERT_EQ(logged.size(), 1u);
  EXPECT_EQ(logged[0], "Brimly: login item toggle failed — Operation not permitted");
  EXPECT_FALSE(model.launchAtLogin());

  // Failing to unregister a registered item leaves the switch on.
  loginItem.enabled = true;
  ControlPanelModel::invoke(model.onToggleLaunch, false);
  EXPECT_EQ(logged.size(), 2u);
  EXPECT_TRUE(model.launchAtLogin());
}

TEST_F(ControlPanelActionsTest, ShowPanelClosesTheCardThenShowsThePanelForFiveSeconds) {
  ControlPanelModel::invoke(model.onShowPanel);
  EXPECT_EQ(calls, std::vector<std::string>{"close card"});
  EXPECT_TRUE(panel.isOpen());
  scheduler.advanceBy(4.9);
  EXPECT_TRUE(panel.isOpen());
  scheduler.advanceBy(0.1);
  EXPECT_FALSE(panel.isOpen());
}

TEST_F(ControlPanelActionsTest, AboutClosesTheCardFirstAndSettingsLeavesItOpen) {
  ControlPanelModel::invoke(model.onAbout);
  ControlPanelModel::invoke(model.onOpenSettings);
  EXPECT_EQ(calls, (std::vector<std::string>{"close card", "about", "settings"}));
}

TEST_F(ControlPanelActionsTest, RefreshingTakesTheSwitchesFromTheTruth) {
  settings.setUseFahrenheit(true);
  proximity.restorePin(true);
  loginItem.enabled = true;
  refreshControlPanelModel(model, *services);
  EXPECT_TRUE(model.useFahrenheit());
  EXPECT_TRUE(model.isPinned());
  EXPECT_TRUE(model.launchAtLogin());
}

TEST_F(ControlPanelActionsTest, CallbacksDoNothingOnceTheServicesAreGone) {
  services.reset();
  ControlPanelModel::invoke(model.onToggleFahrenheit, true);
  ControlPanelModel::invoke(model.onTogglePin, true);
  ControlPanelModel::invoke(model.onAbout);
  EXPECT_FALSE(settings.useFahrenheit());
  EXPECT_FALSE(proximity.isPinned());
  EXPECT_TRUE(calls.empty());
}

TEST_F(ControlPanelActionsTest, QuitEndsTheApplicationsEventLoopWithStatusZero) {
  QTimer::singleShot(0, [this] { ControlPanelModel::invoke(model.onQuit); });
  // Only a guard: reached if "Quit" did not end the loop.
  QTimer guard;
  guard.setSingleShot(true);
  QObject::connect(&guard, &QTimer::timeout, [] { QCoreApplication::exit(1); });
  guard.start(10000);
  EXPECT_EQ(QCoreApplication::exec(), 0);
}

}  // namespace
}  // namespace brimly
