#include "controlpanel/ControlPanelController.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "FakeControlPanelPorts.h"

namespace brimly {
namespace {

using testing::FakeCard;
using testing::FakeOutsideClickMonitor;
using testing::FakeStatusItem;

class ControlPanelControllerTest : public ::testing::Test {
 protected:
  ControlPanelControllerTest() {
    statusItem.button = Rect{700, 945, 24, 37};
    statusItem.buttonScreen = Rect{0, 0, 1512, 945};
    statusItem.mainScreen = Rect{0, 0, 1512, 945};
  }

  FakeStatusItem statusItem;
  FakeOutsideClickMonitor monitor;
  FakeCard card;
  int refreshes = 0;
  ControlPanelController controller{statusItem, monitor, card, [this] { ++refreshes; }};
};

TEST_F(ControlPanelControllerTest, AClickShowsTheCardUnderTheItemAndASecondClickClosesIt) {
  controller.statusItemClicked();
  ASSERT_TRUE(card.visible);
  ASSERT_EQ(card.shownAt.size(), 1u);
  EXPECT_DOUBLE_EQ(card.shownAt[0].x, 712 - 150);
  EXPECT_DOUBLE_EQ(card.shownAt[0].y, 945 - 330);

  controller.statusItemClicked();
  EXPECT_FALSE(card.visible);
  EXPECT_FALSE(controller.hasOutsideClickMonitor());
}

TEST_F(ControlPanelControllerTest, AChangeOfTheScreensClosesAnOpenCardAndItsMonitor) {
  controller.showControlPanel();
  controller.screensChanged();
  EXPECT_FALSE(card.visible);
  EXPECT_EQ(card.closes, 1);
  EXPECT_FALSE(controller.hasOutsideClickMonitor());
  // A closed card stays closed, and the next click opens it under the item as it is now.
  controller.screensChanged();
  EXPECT_EQ(card.closes, 1);
  statusItem.button = Rect{500, 745, 24, 37};
  statusItem.buttonScreen = Rect{0, 0, 1024, 745};
  controller.statusItemClicked();
  ASSERT_TRUE(card.visible);
  EXPECT_DOUBLE_EQ(card.shownAt.back().y, 745 - 330);
}

TEST_F(ControlPanelControllerTest, ShowingRefreshesTheSwitchesFirst) {
  controller.showControlPanel();
  controller.closeControlPanel();
  controller.showControlPanel();
  EXPECT_EQ(refreshes, 2);
}

TEST_F(ControlPanelControllerTest, NothingHappensWhileTheItemHasNoButtonOnScreen) {
  statusItem.button.reset();
  controller.statusItemClicked();
  EXPECT_FALSE(card.visible);
  EXPECT_EQ(refreshes, 0);
  EXPECT_EQ(monitor.installs, 0);
}

TEST_F(ControlPanelControllerTest, OpeningTwiceNeverLeavesTwoMonitors) {
  controller.showControlPanel();
  controller.showControlPanel();
  EXPECT_EQ(monitor.live.size(), 1u);
  EXPECT_EQ(monitor.installs, 2);
  EXPECT_TRUE(controller.hasOutsideClickMonitor());
}

TEST_F(ControlPanelControllerTest, AClickElsewhereClosesTheCardAndRemovesTheMonitor) {
  controller.showControlPanel();
  monitor.click(Point{100, 100});
  EXPECT_FALSE(card.visible);
  EXPECT_TRUE(monitor.live.empty());
  EXPECT_FALSE(controller.hasOutsideClickMonitor());
}

TEST_F(ControlPanelControllerTest,
       AClickOnTheItemIsLeftToTheItemSoTheCardClosesOnceAndStaysClosed) {
  controller.showControlPanel();
  const Point onItem{710, 960};
  // The monitor sees the click first and ignores it; then the item's own action toggles.
  monitor.click(onItem);
  EXPECT_TRUE(card.visible);
  controller.statusItemClicked();
  EXPECT_FALSE(card.visible);
  EXPECT_EQ(card.shownAt.size(), 1u);
}

TEST_F(ControlPanelControllerTest, AClickWhosePlaceTheDesktopDoesNotTellClosesTheCard) {
  // Wayland: the keyboard went to another program's window.
  controller.showControlPanel();
  monitor.click(std::nullopt);
  EXPECT_FALSE(card.visible);
  EXPECT_FALSE(controller.hasOutsideClickMonitor());
}

TEST_F(ControlPanelControllerTest, APressOutsideAPopUpClosesItAndIsPassedOnUnlessOnTheItem) {
  controller.showControlPanel();
  EXPECT_FALSE(controller.pressOutsideCard(Point{710, 960}));
  EXPECT_FALSE(card.visible);

  controller.showControlPanel();
  EXPECT_TRUE(controller.pressOutsideCard(Point{100, 100}));
  EXPECT_FALSE(card.visible);
  EXPECT_EQ(card.shownAt.size(), 2u);
}

TEST_F(ControlPanelControllerTest, ARefusedMonitorLeavesNoTokenAndClosingStillWorks) {
  monitor.refuses = true;
  controller.showControlPanel();
  EXPECT_TRUE(card.visible);
  EXPECT_FALSE(controller.hasOutsideClickMonitor());
  controller.closeControlPanel();
  EXPECT_FALSE(card.visible);
  EXPECT_EQ(monitor.removals, 0);
}

TEST_F(ControlPanelControllerTest, WithoutAStatusItemTheCardCanBeShownAtAnAnchor) {
  statusItem.button.reset();
  statusItem.buttonScreen.reset();
  controller.showControlPanelAt(Rect{1500, 500, 1, 1});
  ASSERT_EQ(card.shownAt.size(), 1u);
  EXPECT_DOUBLE_EQ(card.shownAt[0].x, 1512 - 6 - 300);
  EXPECT_DOUBLE_EQ(card.shownAt[0].y, 500 - 330);
}

TEST_F(ControlPanelControllerTest, ShownAgainItComesBackAtTheAnchorItWasLastShownAt) {
  controller.showControlPanelAgain();
  EXPECT_FALSE(card.visible);

  statusItem.button.reset();
  controller.showControlPanelAt(Rect{800, 500, 1, 1});
  controller.closeControlPanel();
  controller.showControlPanelAgain();
  ASSERT_EQ(card.shownAt.size(), 2u);
  EXPECT_TRUE(card.visible);
  EXPECT_DOUBLE_EQ(card.shownAt[1].x, card.shownAt[0].x);
  EXPECT_DOUBLE_EQ(card.shownAt[1].y, card.shownAt[0].y);
  EXPECT_TRUE(controller.hasOutsideClickMonitor());
}

TEST_F(ControlPanelControllerTest, AMonitorThatOutlivesTheControllerDoesNothing) {
  FakeCard otherCard;
  std::function<void(Point)> lateClick;
  {
    ControlPanelController shortLived(statusItem, monitor, otherCard, nullptr);
    shortLived.showControlPanel();
    ASSERT_EQ(monitor.live.size(), 1u);
    // What a system holds on to when a click was on its way as the monitor went.
    lateClick = monitor.live.begin()->second;
  }
  // Destroying it removed its monitor…
  EXPECT_TRUE(monitor.live.empty());
  // … and a click that still arrives reaches no controller: the card is not closed again.
  const int closes = otherCard.closes;
  lateClick(Point{10, 10});
  EXPECT_EQ(otherCard.closes, closes);
  EXPECT_TRUE(otherCard.visible);
}

}  // namespace
}  // namespace brimly
