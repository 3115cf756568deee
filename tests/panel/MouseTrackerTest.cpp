#include "panel/MouseTracker.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "FakeHoverZonePort.h"
#include "FakePointerPort.h"
#include "FakeScreenPort.h"
#include "panel/NotchGeometry.h"

namespace brimly {
namespace {

using testing::FakeHoverZonePort;
using testing::FakePointerPort;
using testing::FakeScreenPort;

// A screen whose top edge is at y = 1117 and whose middle is at x = 756.
const Rect kScreen{0, 0, 1512, 1117};

ScreenDescription screenAt(Rect frame) {
  ScreenDescription screen;
  screen.frame = frame;
  return screen;
}

// Notch 185 × 32: hidden 205 × 32, shown 616 × 162.
TrackerGeometry notchGeometry(std::optional<Rect> frame = kScreen) {
  return NotchGeometry::trackerGeometry(frame, {185, 32});
}

class MouseTrackerTest : public ::testing::Test {
 protected:
  MouseTrackerTest() {
    desktop.screenList = {screenAt(kScreen)};
    desktop.main = desktop.screenList.front();
    pointer.position = Point{100, 100};
    tracker.setOnChange([this](bool inside) { reports.push_back(inside); });
    tracker.setGeometry(notchGeometry());
  }

  FakePointerPort pointer;
  FakeScreenPort desktop;
  MouseTracker tracker{pointer, desktop};
  std::vector<bool> reports;
};

// --- Edge cases ---

TEST_F(MouseTrackerTest, HiddenZoneIsInclusiveAtItsCornerAndSmall) {
  tracker.start();
  pointer.moveTo({756 + 102.6, 1100});
  EXPECT_TRUE(reports.empty());
  pointer.moveTo({756 + 102.5, 1085});
  EXPECT_EQ(reports, (std::vector<bool>{true}));
}

TEST_F(MouseTrackerTest, ShownZoneIsInclusiveAtItsCornerAndLarge) {
  tracker.start();
  pointer.moveTo({756, 1110});
  pointer.moveTo({756 + 308, 955});
  EXPECT_TRUE(tracker.isInside());
  pointer.moveTo({756 + 308.1, 955});
  EXPECT_FALSE(tracker.isInside());
  EXPECT_EQ(reports, (std::vector<bool>{true, false}));
}

TEST_F(MouseTrackerTest, PointerAboveTheScreenTopIsOutside) {
  // A second screen stacked above the notch screen.
  desktop.screenList.push_back(screenAt({0, 1117, 1512, 982}));
  tracker.start();
  pointer.moveTo({756, 1117});  // on the top edge: inside
  pointer.moveTo({756, 1117.5});
  EXPECT_EQ(reports, (std::vector<bool>{true, false}));
  pointer.moveTo({756, 1200});
  EXPECT_EQ(reports, (std::vector<bool>{true, false}));
}

TEST_F(MouseTrackerTest, WithoutAScreenFrameTheScreenUnderThePointerCounts) {
  const Rect second{1512, 200, 1920, 1080};  // top at 1280, middle at 2472
  desktop.screenList.push_back(screenAt(second));
  tracker.setGeometry(notchGeometry(std::nullopt));
  tracker.start();
  pointer.moveTo({2472 + 102.5, 1279});
  EXPECT_EQ(reports, (std::vector<bool>{true}));
  // Tested against the second screen's top (1280): the shown height reaches down to 1118.
  pointer.moveTo({2472 - 300, 1280 - 162});
  EXPECT_EQ(reports, (std::vector<bool>{true}));
  pointer.moveTo({2472 - 300, 1280 - 162.5});
  EXPECT_EQ(reports, (std::vector<bool>{true, false}));
  // Back on the first screen: its own top and middle.
  pointer.moveTo({756, 1117 - 16});
  EXPECT_EQ(reports, (std::vector<bool>{true, false, true}));
}

TEST_F(MouseTrackerTest, MovingWithinTheZoneReportsOnlyTheEntry) {
  tracker.start();
  pointer.moveTo({756, 1100});
  pointer.moveTo({760, 1105});
  pointer.moveTo({700, 1000});
  pointer.moveTo({1000, 960});
  EXPECT_EQ(reports, (std::vector<bool>{true}));
}

TEST_F(MouseTrackerTest, SizesFollowTheTrackersOwnDecision) {
  // Whatever else holds the panel open, only the small zone counts until the pointer enters it.
  tracker.start();
  pointer.moveTo({756 + 200, 1000});  // inside the shown zone, outside the hidden one
  EXPECT_FALSE(tracker.isInside());
  EXPECT_TRUE(reports.empty());
}

TEST_F(MouseTrackerTest, PlaceholderSizesAreInForceUntilTheGeometryArrives) {
  FakePointerPort otherPointer;
  MouseTracker fresh(otherPointer, desktop);
  EXPECT_EQ(fresh.geometry(), (TrackerGeometry{.screenFrame = std::nullopt,
                                               .triggerWidthHidden = 220,
                                               .triggerWidthShown = 740,
                                               .triggerHeightHidden = 32,
                                               .triggerHeightShown = 140}));
  EXPECT_FALSE(fresh.isInside());
  EXPECT_FALSE(fresh.isWatching());
  std::vector<bool> seen;
  fresh.setOnChange([&](bool inside) { seen.push_back(inside); });
  otherPointer.position = Point{756 + 110, 1117 - 32};
  fresh.start();
  EXPECT_EQ(seen, (std::vector<bool>{true}));
  otherPointer.moveTo({756 + 370, 1117 - 140});
  EXPECT_EQ(seen, (std::vector<bool>{true}));
  otherPointer.moveTo({756 + 370.5, 1117 - 140});
  EXPECT_EQ(seen, (std::vector<bool>{true, false}));
}

TEST_F(MouseTrackerTest, StartWatchesAndEvaluatesOnce) {
  pointer.position = Point{756, 1110};
  tracker.start();
  EXPECT_TRUE(pointer.isWatching());
  EXPECT_TRUE(tracker.isWatching());
  EXPECT_EQ(reports, (std::vector<bool>{true}));
}

TEST_F(MouseTrackerTest, StartingTwiceDoesNothing) {
  tracker.start();
  pointer.position = Point{756, 1110};  // moved without a movement report
  tracker.start();
  EXPECT_EQ(pointer.startCalls, 1);
  EXPECT_TRUE(reports.empty());  // the second start did not evaluate
}

TEST_F(MouseTrackerTest, DesktopWithoutPointerWatchingStillEvaluatesAndRetriesLater) {
  pointer.watchingAvailable = false;
  pointer.position = Point{756, 1110};
  tracker.start();
  EXPECT_FALSE(tracker.isWatching());
  EXPECT_EQ(reports, (std::vector<bool>{true}));
  pointer.watchingAvailable = true;
  tracker.start();
  EXPECT_EQ(pointer.startCalls, 2);
  EXPECT_TRUE(tracker.isWatching());
}

TEST_F(MouseTrackerTest, StopEndsWatchingButKeepsTheDecisionAndListener) {
  tracker.start();
  pointer.moveTo({756, 1110});
  tracker.stop();
  EXPECT_FALSE(pointer.isWatching());
  EXPECT_FALSE(tracker.isWatching());
  EXPECT_TRUE(tracker.isInside());
  pointer.moveTo({100, 100});  // no longer reported
  EXPECT_EQ(reports, (std::vector<bool>{true}));
  tracker.evaluate();  // the listener is still there
  EXPECT_EQ(reports, (std::vector<bool>{true, false}));
}

TEST_F(MouseTrackerTest, StopWhenNotWatchingTouchesNothing) {
  tracker.stop();
  EXPECT_EQ(pointer.stopCalls, 0);
  tracker.start();
  tracker.stop();
  tracker.stop();
  EXPECT_EQ(pointer.stopCalls, 1);
  tracker.start();  // may start again after a stop
  EXPECT_EQ(pointer.startCalls, 2);
}

TEST_F(MouseTrackerTest, NoScreenAtAllReportsOutsideOnce) {
  tracker.setGeometry(notchGeometry(std::nullopt));
  tracker.start();
  pointer.moveTo({756, 1110});
  desktop.screenList.clear();
  desktop.main.reset();
  pointer.moveTo({756, 1111});
  pointer.moveTo({756, 1112});
  EXPECT_EQ(reports, (std::vector<bool>{true, false}));
}

TEST_F(MouseTrackerTest, NoScreenWhileOutsideReportsNothing) {
  tracker.setGeometry(notchGeometry(std::nullopt));
  desktop.screenList.clear();
  desktop.main.reset();
  tracker.start();
  pointer.moveTo({756, 1110});
  EXPECT_TRUE(reports.empty());
}

TEST_F(MouseTrackerTest, PointerOffEveryScreenIsTestedAgainstTheMainScreen) {
  const Rect second{1512, 0, 1920, 1080};
  desktop.screenList.push_back(screenAt(second));
  desktop.main = screenAt(second);
  tracker.setGeometry(notchGeometry(std::nullopt));
  tracker.start();
  // x = 2472 is the main screen's middle; y above every screen but on the main screen's top edge.
  pointer.moveTo({2472, 1080});
  EXPECT_EQ(reports, (std::vector<bool>{true}));
}

TEST_F(MouseTrackerTest, UnknownPointerPositionCountsAsOutside) {
  tracker.start();
  pointer.moveTo({756, 1110});
  pointer.position.reset();
  tracker.evaluate();
  tracker.evaluate();
  EXPECT_EQ(reports, (std::vector<bool>{true, false}));
}

TEST_F(MouseTrackerTest, MovementAfterTheTrackerIsGoneIsIgnored) {
  FakePointerPort otherPointer;
  int calls = 0;
  {
    MouseTracker shortLived(otherPointer, desktop);
    shortLived.setOnChange([&](bool) { ++calls; });
    shortLived.setGeometry(notchGeometry());
    shortLived.start();
  }
  EXPECT_TRUE(otherPointer.isWatching());  // releasing does not stop watching
  otherPointer.moveTo({756, 1110});
  EXPECT_EQ(calls, 0);
}

TEST_F(MouseTrackerTest, KnownScreenFrameSparesTheScreenList) {
  tracker.start();
  for (int i = 0; i < 10; ++i)
    pointer.moveTo({700.0 + i, 1000});
  EXPECT_EQ(desktop.screenListReads, 0);
}

TEST_F(MouseTrackerTest, NewGeometryWaitsForTheNextEvaluation) {
  tracker.start();
  pointer.position = Point{756 + 150, 1110};
  tracker.setGeometry(NotchGeometry::trackerGeometry(kScreen, {300, 32}));
  EXPECT_TRUE(reports.empty());
  tracker.evaluate();
  EXPECT_EQ(reports, (std::vector<bool>{true}));
}

TEST_F(MouseTrackerTest, ListenerMayReplaceItselfWhileBeingTold) {
  std::vector<int> log;
  tracker.setOnChange([&](bool) {
    log.push_back(1);
    tracker.setOnChange([&](bool) { log.push_back(2); });
  });
  tracker.start();
  pointer.moveTo({756, 1110});
  pointer.moveTo({100, 100});
  EXPECT_EQ(log, (std::vector<int>{1, 2}));
}

// --- Properties of the decision ---

TEST(MouseTrackerDecision, AllFourEdgesOfTheZoneAreInclusive) {
  const auto geometry = notchGeometry();
  // Hidden: x in [653.5, 858.5], y in [1085, 1117].
  for (const Point p : {Point{653.5, 1085}, Point{858.5, 1085}, Point{653.5, 1117},
                        Point{858.5, 1117}, Point{756, 1100}}) {
    EXPECT_TRUE(MouseTracker::decide(p, kScreen, false, geometry)) << p.x << "," << p.y;
  }
  for (const Point p :
       {Point{653.4, 1100}, Point{858.6, 1100}, Point{756, 1084.9}, Point{756, 1117.1}}) {
    EXPECT_FALSE(MouseTracker::decide(p, kScreen, false, geometry)) << p.x << "," << p.y;
  }
  // Shown: x in [448, 1064], y in [955, 1117].
  for (const Point p : {Point{448, 955}, Point{1064, 955}, Point{448, 1117}, Point{1064, 1117}}) {
    EXPECT_TRUE(MouseTracker::decide(p, kScreen, true, geometry)) << p.x << "," << p.y;
  }
  for (const Point p :
       {Point{447.9, 1000}, Point{1064.1, 1000}, Point{756, 954.9}, Point{756, 1117.1}}) {
    EXPECT_FALSE(MouseTracker::decide(p, kScreen, true, geometry)) << p.x << "," << p.y;
  }
}

TEST(MouseTrackerDecision, ZoneHangsFromTheFramesTopAndMiddleWhereverTheFrameIs) {
  const Rect frame{-1920, -400, 1920, 1080};  // top at 680, middle at -960
  const auto geometry = NotchGeometry::trackerGeometry(frame, {200, 30});
  EXPECT_TRUE(MouseTracker::decide({-960 - 110, 650}, frame, false, geometry));
  EXPECT_FALSE(MouseTracker::decide({-960 - 110.5, 650}, frame, false, geometry));
  EXPECT_FALSE(MouseTracker::decide({-960, 649.5}, frame, false, geometry));
}

TEST(MouseTrackerDecision, ReferenceFramePrefersTheGivenFrameThenTheScreenUnderThePointer) {
  const ScreenDescription left = screenAt({0, 0, 1000, 800});
  const ScreenDescription right = screenAt({1000, 0, 1000, 800});
  const Rect given{5, 5, 10, 10};
  EXPECT_EQ(MouseTracker::referenceFrame({1500, 10}, given, {left, right}, left), given);
  EXPECT_EQ(MouseTracker::referenceFrame({1500, 10}, std::nullopt, {left, right}, left),
            right.frame);
  EXPECT_EQ(MouseTracker::referenceFrame({5000, 10}, std::nullopt, {left, right}, right),
            right.frame);
  EXPECT_EQ(MouseTracker::referenceFrame({5000, 10}, std::nullopt, {left, right}, std::nullopt),
            std::nullopt);
}

// --- A desktop that reports the zone itself ---

using Zone = HoverZonePort::Zone;

class MouseTrackerZoneTest : public ::testing::Test {
 protected:
  MouseTrackerZoneTest() {
    tracker.setOnChange([this](bool inside) { reports.push_back(inside); });
  }

  FakePointerPort pointer;
  FakeScreenPort desktop;
  FakeHoverZonePort zone;
  MouseTracker tracker{pointer, desktop, &zone};
  std::vector<bool> reports;
};

TEST_F(MouseTrackerZoneTest, ReportsBeforeStartAndAfterStopGoNowhere) {
  zone.enter();
  tracker.start();
  tracker.stop();
  zone.enter();
  EXPECT_TRUE(reports.empty());
  EXPECT_EQ(zone.stopCalls, 1);
  EXPECT_FALSE(zone.isWatching());
}

TEST_F(MouseTrackerZoneTest, StartsOnTheClosedOutlineWithoutTouchingThePointer) {
  tracker.start();
  EXPECT_TRUE(tracker.isWatching());
  EXPECT_EQ(zone.zones, (std::vector<Zone>{Zone::closedOutline}));
  EXPECT_EQ(pointer.startCalls, 0);
  pointer.moveTo({756, 1110});  // a position, were there one, decides nothing
  tracker.evaluate();
  EXPECT_TRUE(reports.empty());
}

TEST_F(MouseTrackerZoneTest, ADesktopThatCannotReportLeavesTheTrackerIdle) {
  zone.watchingAvailable = false;
  tracker.start();
  EXPECT_FALSE(tracker.isWatching());
  EXPECT_TRUE(zone.zones.empty());
}

TEST_F(MouseTrackerZoneTest, PinnedBeforeStartTheZoneIsNone) {
  tracker.setPinned(true);
  EXPECT_TRUE(zone.zones.empty());  // nothing to tell before watching
  tracker.start();
  EXPECT_EQ(zone.zones, (std::vector<Zone>{Zone::none}));
}

TEST_F(MouseTrackerZoneTest, EnteringOpensTheCardZoneAndLeavingClosesIt) {
  tracker.start();
  zone.enter();
  EXPECT_TRUE(tracker.isInside());
  zone.leave();
  EXPECT_FALSE(tracker.isInside());
  EXPECT_EQ(reports, (std::vector<bool>{true, false}));
  EXPECT_EQ(zone.zones,
            (std::vector<Zone>{Zone::closedOutline, Zone::openCard, Zone::closedOutline}));
}

TEST_F(MouseTrackerZoneTest, RepeatedReportsAreToldOnce) {
  tracker.start();
  zone.enter();
  zone.enter();
  EXPECT_EQ(reports, (std::vector<bool>{true}));
}

TEST_F(MouseTrackerZoneTest, PinningTakesTheZoneAwayAndCountsThePointerOutside) {
  tracker.start();
  zone.enter();
  tracker.setPinned(true);
  EXPECT_FALSE(tracker.isInside());
  zone.enter();  // late news from the desktop, about a zone that is gone
  EXPECT_FALSE(tracker.isInside());
  tracker.setPinned(false);
  EXPECT_EQ(reports, (std::vector<bool>{true, false}));
  EXPECT_EQ(zone.zones, (std::vector<Zone>{Zone::closedOutline, Zone::openCard, Zone::none,
                                           Zone::closedOutline}));
}

TEST(MouseTrackerZone, TheZoneFollowsThePinThenThePointer) {
  EXPECT_EQ(MouseTracker::zoneFor(true, true), Zone::none);
  EXPECT_EQ(MouseTracker::zoneFor(true, false), Zone::none);
  EXPECT_EQ(MouseTracker::zoneFor(false, true), Zone::openCard);
  EXPECT_EQ(MouseTracker::zoneFor(false, false), Zone::closedOutline);
}

TEST_F(MouseTrackerTest, WithoutAZoneThePinChangesNothing) {
  tracker.start();
  pointer.moveTo({756, 1110});
  tracker.setPinned(true);
  EXPECT_TRUE(tracker.isInside());
  EXPECT_EQ(reports, (std::vector<bool>{true}));
}

}  // namespace
}  // namespace brimly
