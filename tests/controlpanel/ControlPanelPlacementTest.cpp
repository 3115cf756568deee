#include "controlpanel/ControlPanelPlacement.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

// A 1512 × 982 screen whose menu bar is 37 high: the visible frame ends 37 below the top.
const Rect screenVisible{0, 0, 1512, 945};
const Size card{300, 330};

Rect buttonCentredAt(double midX) {
  return Rect{midX - 12, 945, 24, 37};
}

TEST(ControlPanelPlacement, CentresTheCardUnderTheButtonWithItsTopOnTheButtonsBottom) {
  const Point origin = ControlPanelPlacement::cardOrigin(buttonCentredAt(700), screenVisible, card);
  EXPECT_DOUBLE_EQ(origin.x, 700 - 150);
  EXPECT_DOUBLE_EQ(origin.y, 945 - 330);
}

TEST(ControlPanelPlacement, NearTheRightEdgeEndsSixPointsInside) {
  const Point origin =
      ControlPanelPlacement::cardOrigin(buttonCentredAt(1500), screenVisible, card);
  EXPECT_DOUBLE_EQ(origin.x + card.width, 1512 - 6);
}

TEST(ControlPanelPlacement, NearTheLeftEdgeStartsSixPointsInside) {
  const Point origin = ControlPanelPlacement::cardOrigin(buttonCentredAt(20), screenVisible, card);
  EXPECT_DOUBLE_EQ(origin.x, 6);
}

TEST(ControlPanelPlacement, ExactlyAtTheLeftMarginIsKeptThere) {
  // x = 156 - 150 = 6 lies on the margin: the rule takes the margin (the same value).
  const Point origin = ControlPanelPlacement::cardOrigin(buttonCentredAt(156), screenVisible, card);
  EXPECT_DOUBLE_EQ(origin.x, 6);
}

TEST(ControlPanelPlacement, ACardWiderThanTheAreaStartsAtTheLeftMarginAndOverflowsRight) {
  const Rect narrow{100, 0, 250, 945};
  const Point origin = ControlPanelPlacement::cardOrigin(Rect{200, 945, 24, 37}, narrow, card);
  EXPECT_DOUBLE_EQ(origin.x, 106);
  EXPECT_GT(origin.x + card.width, narrow.maxX());
}

TEST(ControlPanelPlacement, FollowsTheAreaOfASecondScreen) {
  const Rect left{-1920, 0, 1920, 1050};
  const Point origin = ControlPanelPlacement::cardOrigin(Rect{-30, 1050, 24, 30}, left, card);
  EXPECT_DOUBLE_EQ(origin.x, -6 - card.width);
}

TEST(ControlPanelPlacement, OpensUpwardsFromAnItemOfABottomPanel) {
  // A 40-high panel at the bottom: the visible frame starts 40 up.
  const Rect aboveBottomPanel{0, 40, 1512, 942};
  const Rect item{1400, 0, 32, 40};
  const Point origin = ControlPanelPlacement::cardOrigin(item, aboveBottomPanel, card);
  EXPECT_DOUBLE_EQ(origin.y, item.maxY());
  EXPECT_DOUBLE_EQ(origin.x + card.width, 1512 - 6);
}

TEST(ControlPanelPlacement, StaysUnderTheItemWhenItFitsNowhereElse) {
  const Rect tiny{0, 0, 800, 200};
  const Rect item{400, 200, 24, 24};
  const Point origin = ControlPanelPlacement::cardOrigin(item, tiny, card);
  EXPECT_DOUBLE_EQ(origin.y, 200 - card.height);
}

TEST(ControlPanelPlacement, AGuessedItemInsideATopPanelHangsTheCardFromThePanelsEdge) {
  // A click 12 below the top of a 37-high menu bar: the item taken around it ends 24 down, 13
  // short of the bar's edge; the card still starts at the edge, not over the bar.
  const Rect guessed{688, 982 - 24, 24, 24};
  const Point origin = ControlPanelPlacement::cardOrigin(guessed, screenVisible, card);
  EXPECT_DOUBLE_EQ(origin.y + card.height, screenVisible.maxY());
}

TEST(ControlPanelPlacement, AGuessedItemReachingIntoTheAreaKeepsTheCardRightUnderIt) {
  // A bar that reserves nothing (the area is the whole screen): the card hangs from the item.
  const Rect wholeScreen{0, 0, 1512, 982};
  const Rect guessed{688, 982 - 30, 24, 24};
  const Point origin = ControlPanelPlacement::cardOrigin(guessed, wholeScreen, card);
  EXPECT_DOUBLE_EQ(origin.y + card.height, guessed.minY());
}

TEST(ControlPanelPlacement, AGuessedItemInsideABottomPanelOpensTheCardFromThePanelsEdge) {
  const Rect aboveBottomPanel{0, 40, 1512, 942};
  const Rect guessed{1400, 8, 24, 24};  // a click 20 above the screen's bottom edge
  const Point origin = ControlPanelPlacement::cardOrigin(guessed, aboveBottomPanel, card);
  EXPECT_DOUBLE_EQ(origin.y, aboveBottomPanel.minY());
}

TEST(ControlPanelPlacement, AClickInTheMiddleOfTheScreenOpensTheCardUnderIt) {
  const Rect guessed{700, 500, 24, 24};
  const Point origin = ControlPanelPlacement::cardOrigin(guessed, screenVisible, card);
  EXPECT_DOUBLE_EQ(origin.x, 712 - 150);
  EXPECT_DOUBLE_EQ(origin.y, 500 - card.height);
}

TEST(ControlPanelPlacement, AClickNearTheBottomWithoutRoomAboveStaysInsideTheArea) {
  // Too low for the card to hang under it, too high for it to open upwards above it.
  const Rect screen{0, 0, 800, 600};
  const Rect guessed{400, 290, 24, 24};
  const Point origin = ControlPanelPlacement::cardOrigin(guessed, screen, card);
  EXPECT_DOUBLE_EQ(origin.y, 0);
}

TEST(ControlPanelPlacement, TheAreaIsTheButtonsScreenThenTheMainScreenThenTheButton) {
  const Rect button{10, 20, 30, 40};
  const Rect own{0, 0, 100, 100};
  const Rect main{0, 0, 200, 200};
  EXPECT_EQ(ControlPanelPlacement::boundingArea(own, main, button), own);
  EXPECT_EQ(ControlPanelPlacement::boundingArea(std::nullopt, main, button), main);
  EXPECT_EQ(ControlPanelPlacement::boundingArea(std::nullopt, std::nullopt, button), button);
}

}  // namespace
}  // namespace brimly
