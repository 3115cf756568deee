#include "panel/PanelLaunch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "FakePointerPort.h"
#include "FakeScreenPort.h"
#include "ManualScheduler.h"
#include "panel/MouseTracker.h"
#include "panel/NotchGeometry.h"
#include "panel/PanelState.h"
#include "panel/ProximityController.h"
#include "sampling/SamplingRateControl.h"

namespace brimly {
namespace {

using testing::FakePointerPort;
using testing::FakeScreenPort;
using testing::ManualScheduler;

using Log = std::vector<std::string>;

class LoggingMonitor final : public SamplingRateControl {
 public:
  explicit LoggingMonitor(Log& log) : log_(log) {}
  bool panelOpen() const override { return flag_; }
  void setPanelOpenFlag(bool open) override { flag_ = open; }
  void restartTimer(double intervalSeconds) override {
    log_.push_back("sample every " + std::to_string(static_cast<int>(intervalSeconds)) + " s");
  }

 private:
  Log& log_;
  bool flag_ = false;
};

class LoggingPointer final : public PointerPort {
 public:
  explicit LoggingPointer(Log& log) : log_(log) {}
  bool startWatching(std::function<void()> onMove) override {
    log_.push_back("watch pointer");
    onMove_ = std::move(onMove);
    return true;
  }
  void stopWatching() override {
    log_.push_back("stop watching pointer");
    onMove_ = nullptr;
  }
  std::optional<Point> location() const override { return position; }
  void moveTo(Point p) {
    position = p;
    if (onMove_) onMove_();
  }

  std::optional<Point> position = Point{100, 100};

 private:
  Log& log_;
  std::function<void()> onMove_;
};

class PanelLaunchTest : public ::testing::Test {
 protected:
  PanelLaunchTest() {
    ScreenDescription screen;
    screen.frame = {0, 0, 1512, 1117};
    desktop.screenList = {screen};
    QObject::connect(&panel, &PanelState::isOpenAssigned,
                     [this](bool open) { log.push_back(open ? "open" : "close"); });
    tracker.setOnChange([this](bool) { log.push_back("stale listener"); });
  }

  PanelLaunchHooks hooks() {
    return {
        .recomputeNotch = [this] { log.push_back("measure notch"); },
        .buildWindow = [this] { log.push_back("build window"); },
        .buildStatusItem =
            [this] {
              log.push_back(std::string("build status item, pin ") +
                            (proximity.isPinned() ? "on" : "off"));
            },
        .placePanel = [this] { log.push_back("place panel"); },
        .applyTrackerGeometry =
            [this] {
              log.push_back("tracker geometry");
              tracker.setGeometry(
                  NotchGeometry::trackerGeometry(desktop.screenList.front().frame, {185, 32}));
            },
        .observeScreenChanges = [this] { log.push_back("observe screens"); },
        .installSettingsShortcut = [this] { log.push_back("settings shortcut"); },
    };
  }

  Log log;
  ManualScheduler scheduler;
  PanelState panel;
  LoggingMonitor monitor{log};
  LoggingPointer pointer{log};
  FakeScreenPort desktop;
  MouseTracker tracker{pointer, desktop};
  ProximityController proximity{panel, monitor, scheduler, tracker};
  PanelLaunch launch{proximity, tracker, monitor};
};

// --- Edge cases ---

TEST_F(PanelLaunchTest, PersistedPinOpensThePanelAndSamplesFastBeforeTheTrackerStarts) {
  launch.launch(true, hooks());
  EXPECT_EQ(log, (Log{"measure notch", "build window", "build status item, pin on", "place panel",
                      "sample every 5 s", "open", "sample every 1 s", "tracker geometry",
                      "watch pointer", "observe screens", "settings shortcut"}));
  EXPECT_TRUE(panel.isOpen());
  EXPECT_TRUE(monitor.panelOpen());
}

TEST_F(PanelLaunchTest, TerminationCancelsSamplingStopsTheTrackerAndRemovesTheShortcut) {
  launch.launch(false, hooks());
  log.clear();
  launch.shutdown({.cancelSamplingTimer = [this] { log.push_back("cancel sampling"); },
                   .removeSettingsShortcut = [this] { log.push_back("remove shortcut"); }});
  EXPECT_EQ(log, (Log{"cancel sampling", "stop watching pointer", "remove shortcut"}));
  EXPECT_FALSE(tracker.isWatching());
  pointer.moveTo({756, 1110});
  EXPECT_FALSE(panel.isOpen());
}

// --- Properties ---

TEST_F(PanelLaunchTest, WithoutAPinThePanelStartsClosedAtTheSlowRate) {
  launch.launch(false, hooks());
  EXPECT_EQ(log, (Log{"measure notch", "build window", "build status item, pin off", "place panel",
                      "sample every 5 s", "tracker geometry", "watch pointer", "observe screens",
                      "settings shortcut"}));
  EXPECT_FALSE(panel.isOpen());
  EXPECT_FALSE(proximity.isPinned());
}

TEST_F(PanelLaunchTest, TrackerReportsReachTheProximityRulesAfterLaunch) {
  launch.launch(false, hooks());
  log.clear();
  pointer.moveTo({756, 1110});
  EXPECT_EQ(log, (Log{"open", "sample every 1 s"}));
  pointer.moveTo({100, 100});
  scheduler.advanceBy(0.4);
  EXPECT_EQ(log, (Log{"open", "sample every 1 s", "close", "sample every 5 s"}));
}

TEST_F(PanelLaunchTest, PointerAlreadyOnTheNotchOpensThePanelAsTheTrackerStarts) {
  pointer.position = Point{756, 1110};
  launch.launch(false, hooks());
  EXPECT_EQ(log, (Log{"measure notch", "build window", "build status item, pin off", "place panel",
                      "sample every 5 s", "tracker geometry", "watch pointer", "open",
                      "sample every 1 s", "observe screens", "settings shortcut"}));
}

TEST_F(PanelLaunchTest, PinnedPanelIgnoresThePointerFromTheStart) {
  pointer.position = Point{756, 1110};
  launch.launch(true, hooks());
  log.clear();
  pointer.moveTo({100, 100});
  scheduler.advanceBy(1);
  EXPECT_TRUE(log.empty());
  EXPECT_TRUE(panel.isOpen());
}

TEST_F(PanelLaunchTest, MissingHooksAreSkipped) {
  launch.launch(false, {});
  EXPECT_EQ(log, (Log{"sample every 5 s", "watch pointer"}));
  launch.shutdown({});
  EXPECT_EQ(log, (Log{"sample every 5 s", "watch pointer", "stop watching pointer"}));
}

}  // namespace
}  // namespace brimly
