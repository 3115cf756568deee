#include "panel/ProximityController.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "FakePointerPort.h"
#include "FakeSamplingRateControl.h"
#include "FakeScreenPort.h"
#include "ManualScheduler.h"
#include "panel/MouseTracker.h"
#include "panel/NotchGeometry.h"
#include "panel/PanelState.h"

namespace brimly {
namespace {

using testing::FakePointerPort;
using testing::FakeSamplingRateControl;
using testing::FakeScreenPort;
using testing::ManualScheduler;

class ProximityControllerTest : public ::testing::Test {
 protected:
  ProximityControllerTest() {
    QObject::connect(&panel, &PanelState::isOpenAssigned,
                     [this](bool open) { assignments.push_back(open); });
  }

  // The tracker reports a change and its `isInside` follows, as the real one does.
  void pointerEnters() {
    inside = true;
    proximity.handleProximity(true);
  }
  void pointerLeaves() {
    inside = false;
    proximity.handleProximity(false);
  }
  // Brings the panel to "open, pointer inside" and forgets what that took.
  void openByPointer() {
    pointerEnters();
    monitor.restartedIntervals.clear();
    monitor.flagWrites.clear();
    assignments.clear();
  }

  ManualScheduler scheduler;
  PanelState panel;
  FakeSamplingRateControl monitor;
  bool inside = false;
  ProximityController proximity{panel, monitor, scheduler, [this] { return inside; }};
  std::vector<bool> assignments;
};

// --- Edge cases ---

TEST_F(ProximityControllerTest, LeavingAndReturningWithinTheGracePeriodNeverCloses) {
  openByPointer();
  pointerLeaves();
  scheduler.advanceBy(0.3);
  pointerEnters();
  scheduler.advanceBy(10);
  EXPECT_TRUE(panel.isOpen());
  EXPECT_TRUE(monitor.restartedIntervals.empty());
  EXPECT_TRUE(monitor.flag);
  EXPECT_EQ(scheduler.pendingDeferredTaskCount(), 0u);
}

TEST_F(ProximityControllerTest, LeavingClosesAfterTheGracePeriodWithOneSlowRestart) {
  openByPointer();
  pointerLeaves();
  scheduler.advanceBy(0.3999);
  EXPECT_TRUE(panel.isOpen());
  EXPECT_TRUE(monitor.restartedIntervals.empty());
  scheduler.advanceBy(0.0001);
  EXPECT_FALSE(panel.isOpen());
  EXPECT_FALSE(monitor.flag);
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{5.0}));
  scheduler.advanceBy(10);
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{5.0}));
}

TEST_F(ProximityControllerTest, EnteringWhileShownTemporarilyCancelsTheCloseWithoutRestart) {
  proximity.showPanelTemporarily(5.0);
  monitor.restartedIntervals.clear();
  scheduler.advanceBy(2);
  pointerEnters();
  EXPECT_EQ(scheduler.pendingDeferredTaskCount(), 0u);
  EXPECT_FALSE(proximity.hasPendingClose());
  scheduler.advanceBy(10);
  EXPECT_TRUE(panel.isOpen());
  EXPECT_TRUE(monitor.restartedIntervals.empty());
}

TEST_F(ProximityControllerTest, PinnedPanelIgnoresThePointerAndOutlastsATemporaryShowing) {
  proximity.showPanelTemporarily(5.0);
  proximity.setPinned(true);
  monitor.restartedIntervals.clear();
  assignments.clear();
  pointerEnters();
  pointerLeaves();
  pointerEnters();
  EXPECT_EQ(scheduler.pendingDeferredTaskCount(), 0u);  // the leave scheduled nothing
  proximity.showPanelTemporarily(5.0);
  assignments.clear();
  inside = false;
  scheduler.advanceBy(5.0);  // the temporary showing's close finds the pin
  EXPECT_TRUE(panel.isOpen());
  EXPECT_TRUE(assignments.empty());
  EXPECT_TRUE(monitor.restartedIntervals.empty());
  EXPECT_TRUE(monitor.flag);
}

TEST_F(ProximityControllerTest, UnpinningWithThePointerInsideLeavesThePanelOpen) {
  proximity.setPinned(true);
  inside = true;
  monitor.restartedIntervals.clear();
  proximity.setPinned(false);
  EXPECT_TRUE(panel.isOpen());
  EXPECT_TRUE(monitor.restartedIntervals.empty());
  scheduler.advanceBy(10);
  EXPECT_TRUE(panel.isOpen());
}

TEST_F(ProximityControllerTest, UnpinningWithThePointerAwayClosesAtOnce) {
  proximity.setPinned(true);
  monitor.restartedIntervals.clear();
  proximity.setPinned(false);
  EXPECT_FALSE(panel.isOpen());
  EXPECT_FALSE(monitor.flag);
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{5.0}));
  EXPECT_EQ(scheduler.pendingDeferredTaskCount(), 0u);
}

TEST_F(ProximityControllerTest, TwoOutsideReportsLeaveTwoClosesThatEachDecideWhenTheyRun) {
  proximity.showPanelTemporarily(5.0);
  scheduler.advanceBy(1);
  proximity.handleProximity(false);  // at 1.0: close due at 1.4 (the 5 s one is replaced)
  scheduler.advanceBy(0.2);
  proximity.handleProximity(false);  // at 1.2: close due at 1.6, the one at 1.4 is kept
  EXPECT_EQ(scheduler.pendingDeferredTaskCount(), 3u);
  monitor.restartedIntervals.clear();
  assignments.clear();
  scheduler.advanceBy(0.2);  // 1.4: the replaced close runs and closes
  EXPECT_FALSE(panel.isOpen());
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{5.0}));
  scheduler.advanceBy(0.2);  // 1.6: the second close runs: closed again, no second restart
  EXPECT_EQ(assignments, (std::vector<bool>{false, false}));
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{5.0}));
  scheduler.advanceBy(5);  // 5.0: the temporary showing's close, replaced but never cancelled
  EXPECT_EQ(assignments, (std::vector<bool>{false, false, false}));
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{5.0}));
}

TEST_F(ProximityControllerTest, ReplacedCloseFindsThePointerBackAndDoesNothing) {
  openByPointer();
  pointerLeaves();  // close due at 0.4
  scheduler.advanceBy(0.1);
  pointerLeaves();  // close due at 0.5; the one at 0.4 stays scheduled
  scheduler.advanceBy(0.1);
  pointerEnters();  // cancels only the latest
  EXPECT_EQ(scheduler.pendingDeferredTaskCount(), 1u);
  scheduler.advanceBy(1);
  EXPECT_TRUE(panel.isOpen());
  EXPECT_TRUE(assignments.empty());
  EXPECT_TRUE(monitor.restartedIntervals.empty());
}

// --- The states and their transitions ---

TEST_F(ProximityControllerTest, StartsClosed) {
  EXPECT_FALSE(panel.isOpen());
  EXPECT_FALSE(proximity.isPinned());
  EXPECT_FALSE(proximity.hasPendingClose());
}

TEST_F(ProximityControllerTest, ClosedOpensAtOnceWhenThePointerEnters) {
  pointerEnters();
  EXPECT_TRUE(panel.isOpen());
  EXPECT_TRUE(monitor.flag);
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{1.0}));
  EXPECT_EQ(assignments, (std::vector<bool>{true}));
  EXPECT_FALSE(proximity.hasPendingClose());
}

TEST_F(ProximityControllerTest, ClosedOpensWhenPinned) {
  proximity.setPinned(true);
  EXPECT_TRUE(panel.isOpen());
  EXPECT_TRUE(proximity.isPinned());
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{1.0}));
}

TEST_F(ProximityControllerTest, ClosedOpensForATemporaryShowingThenClosesWhenItEnds) {
  proximity.showPanelTemporarily(5.0);
  EXPECT_TRUE(panel.isOpen());
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{1.0}));
  scheduler.advanceBy(4.9999);
  EXPECT_TRUE(panel.isOpen());
  scheduler.advanceBy(0.0001);
  EXPECT_FALSE(panel.isOpen());
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{1.0, 5.0}));
}

TEST_F(ProximityControllerTest, OpenGoesToClosingWhenThePointerLeaves) {
  openByPointer();
  pointerLeaves();
  EXPECT_TRUE(panel.isOpen());
  EXPECT_TRUE(proximity.hasPendingClose());
  EXPECT_EQ(scheduler.pendingDeferredTaskCount(), 1u);
  EXPECT_TRUE(assignments.empty());
  EXPECT_TRUE(monitor.restartedIntervals.empty());
}

TEST_F(ProximityControllerTest, ClosingReturnsToOpenWhenThePointerReturns) {
  openByPointer();
  pointerLeaves();
  pointerEnters();
  EXPECT_TRUE(panel.isOpen());
  EXPECT_FALSE(proximity.hasPendingClose());
  EXPECT_EQ(scheduler.pendingDeferredTaskCount(), 0u);
  EXPECT_TRUE(assignments.empty());  // already open: not assigned again
}

TEST_F(ProximityControllerTest, ShownTemporarilyBecomesOpenWhenThePointerEntersAndClosesByItLater) {
  proximity.showPanelTemporarily(5.0);
  scheduler.advanceBy(1);
  pointerEnters();
  scheduler.advanceBy(10);
  EXPECT_TRUE(panel.isOpen());
  pointerLeaves();
  scheduler.advanceBy(0.4);
  EXPECT_FALSE(panel.isOpen());
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{1.0, 5.0}));
}

TEST_F(ProximityControllerTest, ShownTemporarilyStaysOpenWhenItsCloseFindsThePointerInside) {
  proximity.showPanelTemporarily(5.0);
  inside = true;  // the tracker's view, whether or not it has reported yet
  scheduler.advanceBy(5);
  EXPECT_TRUE(panel.isOpen());
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{1.0}));
}

TEST_F(ProximityControllerTest, PinOffWithThePointerInsideIsOpenAndFollowsThePointerAgain) {
  proximity.setPinned(true);
  pointerEnters();
  proximity.setPinned(false);
  EXPECT_TRUE(panel.isOpen());
  pointerLeaves();
  scheduler.advanceBy(0.4);
  EXPECT_FALSE(panel.isOpen());
}

TEST_F(ProximityControllerTest, PinOffWithThePointerAwayIsClosedAndFollowsThePointerAgain) {
  proximity.setPinned(true);
  proximity.setPinned(false);
  EXPECT_FALSE(panel.isOpen());
  pointerEnters();
  EXPECT_TRUE(panel.isOpen());
}

// --- Details of each operation ---

TEST_F(ProximityControllerTest, EnteringAnOpenPanelDoesNotConsultTheMonitor) {
  panel.setOpen(true);  // open, but the monitor still at the slow rate
  assignments.clear();
  pointerEnters();
  EXPECT_FALSE(monitor.flag);
  EXPECT_TRUE(monitor.restartedIntervals.empty());
  EXPECT_TRUE(assignments.empty());
}

TEST_F(ProximityControllerTest, OpeningWithTheMonitorAlreadyFastDoesNotRestartIt) {
  monitor.flag = true;
  pointerEnters();
  EXPECT_TRUE(panel.isOpen());
  EXPECT_TRUE(monitor.restartedIntervals.empty());
  EXPECT_TRUE(monitor.flagWrites.empty());
}

TEST_F(ProximityControllerTest, CloseAssignsClosedEvenWhenAlreadyClosedButRestartsOnlyOnAChange) {
  proximity.handleProximity(false);  // closed, pointer away: a close is scheduled all the same
  scheduler.advanceBy(0.4);
  EXPECT_EQ(assignments, (std::vector<bool>{false}));
  EXPECT_TRUE(monitor.restartedIntervals.empty());
  EXPECT_TRUE(monitor.flagWrites.empty());
}

TEST_F(ProximityControllerTest, TemporaryShowingAssignsOpenEvenWhenAlreadyOpen) {
  openByPointer();
  proximity.showPanelTemporarily(5.0);
  EXPECT_EQ(assignments, (std::vector<bool>{true}));
  EXPECT_TRUE(monitor.restartedIntervals.empty());
}

TEST_F(ProximityControllerTest, TemporaryShowingReplacesAPendingCloseByItsOwn) {
  openByPointer();
  pointerLeaves();
  proximity.showPanelTemporarily(5.0);
  EXPECT_EQ(scheduler.pendingDeferredTaskCount(), 1u);
  scheduler.advanceBy(4.9);
  EXPECT_TRUE(panel.isOpen());
  scheduler.advanceBy(0.1);
  EXPECT_FALSE(panel.isOpen());
}

TEST_F(ProximityControllerTest, TemporaryShowingWithAnUnusableDurationEndsAtOnce) {
  for (const double duration :
       {-3.0, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    proximity.showPanelTemporarily(duration);
    EXPECT_TRUE(panel.isOpen());
    scheduler.advanceBy(0);
    EXPECT_FALSE(panel.isOpen()) << duration;
  }
}

TEST_F(ProximityControllerTest, PinChangeCancelsThePendingClose) {
  openByPointer();
  pointerLeaves();
  proximity.setPinned(true);
  EXPECT_FALSE(proximity.hasPendingClose());
  EXPECT_EQ(scheduler.pendingDeferredTaskCount(), 0u);
  proximity.showPanelTemporarily(5.0);
  proximity.setPinned(false);
  EXPECT_EQ(scheduler.pendingDeferredTaskCount(), 0u);
}

TEST_F(ProximityControllerTest, PinChangeAssignsTheStateAndRestartsOnlyOnAFlagChange) {
  openByPointer();
  proximity.setPinned(true);  // already open and fast
  EXPECT_EQ(assignments, (std::vector<bool>{true}));
  EXPECT_TRUE(monitor.restartedIntervals.empty());
  inside = false;
  proximity.setPinned(false);
  EXPECT_EQ(assignments, (std::vector<bool>{true, false}));
  EXPECT_EQ(monitor.flagWrites, (std::vector<bool>{false}));
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{5.0}));
  proximity.setPinned(false);  // closed and slow already
  EXPECT_EQ(assignments, (std::vector<bool>{true, false, false}));
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{5.0}));
}

TEST_F(ProximityControllerTest, PinIsTakenAndPassedOnBeforeThePanelChanges) {
  std::vector<std::string> log;
  proximity.setOnPinChange([&](bool pinned) {
    log.push_back(std::string("persist ") + (pinned ? "on" : "off") +
                  (proximity.isPinned() == pinned ? " taken" : " not taken") +
                  (panel.isOpen() ? " open" : " closed"));
  });
  QObject::connect(&panel, &PanelState::isOpenAssigned,
                   [&](bool open) { log.push_back(open ? "open" : "close"); });
  proximity.setPinned(true);
  proximity.setPinned(false);
  EXPECT_EQ(log, (std::vector<std::string>{"persist on taken closed", "open",
                                           "persist off taken open", "close"}));
}

TEST_F(ProximityControllerTest, RestoredPinOpensAtLaunchWithoutBeingPersistedAgain) {
  int persisted = 0;
  proximity.setOnPinChange([&](bool) { ++persisted; });
  proximity.restorePin(true);
  EXPECT_TRUE(proximity.isPinned());
  EXPECT_FALSE(panel.isOpen());  // only the launch's opening step opens it
  proximity.openIfPinned();
  EXPECT_TRUE(panel.isOpen());
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{1.0}));
  EXPECT_EQ(persisted, 0);
  pointerLeaves();  // the tracker's reports are ignored until the pin is released
  scheduler.advanceBy(1);
  EXPECT_TRUE(panel.isOpen());
}

TEST_F(ProximityControllerTest, NoRestoredPinLeavesThePanelClosedAtLaunch) {
  proximity.restorePin(false);
  proximity.openIfPinned();
  EXPECT_FALSE(panel.isOpen());
  EXPECT_TRUE(assignments.empty());
  EXPECT_TRUE(monitor.restartedIntervals.empty());
}

TEST(ProximityControllerLifetime, CloseThatFiresAfterTheControllerIsGoneDoesNothing) {
  ManualScheduler scheduler;
  PanelState panel;
  FakeSamplingRateControl monitor;
  std::function<void(bool)> handler;
  {
    ProximityController proximity(panel, monitor, scheduler, [] { return false; });
    handler = proximity.proximityHandler();
    proximity.handleProximity(true);
    proximity.handleProximity(false);
  }
  scheduler.advanceBy(1);
  EXPECT_TRUE(panel.isOpen());
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{1.0}));
  handler(false);  // the tracker's callback outlived the controller
  EXPECT_EQ(scheduler.pendingDeferredTaskCount(), 0u);
}

TEST(ProximityControllerLifetime, HandlerForwardsWhileTheControllerExists) {
  ManualScheduler scheduler;
  PanelState panel;
  FakeSamplingRateControl monitor;
  ProximityController proximity(panel, monitor, scheduler, [] { return false; });
  auto handler = proximity.proximityHandler();
  handler(true);
  EXPECT_TRUE(panel.isOpen());
  handler(false);
  scheduler.advanceBy(0.4);
  EXPECT_FALSE(panel.isOpen());
}

// --- Together with the real tracker ---

class ProximityWithTrackerTest : public ::testing::Test {
 protected:
  ProximityWithTrackerTest() {
    ScreenDescription screen;
    screen.frame = {0, 0, 1512, 1117};
    desktop.screenList = {screen};
    pointer.position = Point{100, 100};
    tracker.setGeometry(NotchGeometry::trackerGeometry(screen.frame, {185, 32}));
    tracker.setOnChange(proximity.proximityHandler());
    tracker.start();
  }

  ManualScheduler scheduler;
  PanelState panel;
  FakeSamplingRateControl monitor;
  FakePointerPort pointer;
  FakeScreenPort desktop;
  MouseTracker tracker{pointer, desktop};
  ProximityController proximity{panel, monitor, scheduler, tracker};
};

TEST_F(ProximityWithTrackerTest, OnlyTheSmallZoneCountsDuringATemporaryShowing) {
  proximity.showPanelTemporarily(5.0);
  pointer.moveTo({756 + 250, 1000});  // over the open panel, but never through the notch
  EXPECT_FALSE(tracker.isInside());
  scheduler.advanceBy(5);
  EXPECT_FALSE(panel.isOpen());
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{1.0, 5.0}));
}

TEST_F(ProximityWithTrackerTest, PointerOverTheNotchOpensAndLeavingTheOpenPanelCloses) {
  pointer.moveTo({756, 1110});
  EXPECT_TRUE(panel.isOpen());
  pointer.moveTo({756 + 250, 1000});  // still over the open panel
  scheduler.advanceBy(1);
  EXPECT_TRUE(panel.isOpen());
  pointer.moveTo({756 + 400, 1000});
  scheduler.advanceBy(0.4);
  EXPECT_FALSE(panel.isOpen());
  EXPECT_EQ(monitor.restartedIntervals, (std::vector<double>{1.0, 5.0}));
}

TEST_F(ProximityWithTrackerTest, UnpinningAsksTheTrackerWhereThePointerIs) {
  proximity.setPinned(true);
  pointer.moveTo({756, 1110});
  proximity.setPinned(false);
  EXPECT_TRUE(panel.isOpen());
  pointer.moveTo({100, 100});
  proximity.setPinned(true);
  proximity.setPinned(false);
  EXPECT_FALSE(panel.isOpen());
}

}  // namespace
}  // namespace brimly
