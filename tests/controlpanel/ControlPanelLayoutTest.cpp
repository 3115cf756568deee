#include "controlpanel/ControlPanelLayout.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

ControlPanelMeasures typical() {
  ControlPanelMeasures m;
  m.name = Size{44, 18};
  m.version = Size{30, 13};
  m.sectionLabel = Size{60, 12};
  m.rowTitleHeight = 15;
  m.switchSize = Size{34, 22};
  m.buttonTitles = {Size{38, 15}, Size{54, 15}, Size{30, 15}, Size{22, 15}};
  return m;
}

TEST(ControlPanelLayout, TheCardIs264WideInsideAnEighteenPointShadowMargin) {
  const ControlPanelLayout layout = ControlPanelLayout::compute(typical());
  EXPECT_EQ(layout.card.x, 18);
  EXPECT_EQ(layout.card.y, 18);
  EXPECT_EQ(layout.card.width, 264);
  EXPECT_EQ(layout.windowSize.width, 264 + 36);
  EXPECT_EQ(layout.windowSize.height, layout.card.height + 36);
}

TEST(ControlPanelLayout, PiecesFollowEachOtherWithTheirMargins) {
  const ControlPanelLayout l = ControlPanelLayout::compute(typical());
  // Header: 16 symbol beside a 18 + 1 + 13 = 32 column, so the column sets the height.
  EXPECT_EQ(l.headerSymbol, (Rect{34, 34 + 8, 16, 16}));
  EXPECT_EQ(l.name, (Rect{34 + 16 + 10, 34, 44, 18}));
  EXPECT_EQ(l.version.y, 34 + 18 + 1);
  EXPECT_EQ(l.firstDivider, (Rect{34, 34 + 32 + 14, 232, 1}));
  EXPECT_EQ(l.sectionLabel.y, l.firstDivider.maxY() + 12);
  EXPECT_EQ(l.rows[0].symbol.y, l.sectionLabel.maxY() + 10);
  EXPECT_EQ(l.rows[1].symbol.y, l.rows[0].symbol.maxY() + 13);
  EXPECT_EQ(l.rows[2].symbol.y, l.rows[1].symbol.maxY() + 13);
  EXPECT_EQ(l.secondDivider.y, l.rows[2].symbol.maxY() + 14);
  EXPECT_EQ(l.buttons[0].y, l.secondDivider.maxY() + 14);
  EXPECT_EQ(l.card.maxY(), l.buttons[0].maxY() + 16);
}

TEST(ControlPanelLayout, SwitchRowsLineUpTheirTitlesAndEndInTheirSwitch) {
  const ControlPanelLayout l = ControlPanelLayout::compute(typical());
  for (const ControlPanelLayout::Row& row : l.rows) {
    EXPECT_EQ(row.symbol.width, 17);
    EXPECT_EQ(row.title.x, 34 + 17 + 8);
    EXPECT_EQ(row.toggle.maxX(), 18 + 264 - 16);
    EXPECT_EQ(row.toggle.midY(), row.symbol.midY());
  }
}

TEST(ControlPanelLayout, QuitSitsAloneAtTheTrailingEdgeAndTheOthersFollowEachOther) {
  const ControlPanelLayout l = ControlPanelLayout::compute(typical());
  EXPECT_EQ(l.buttons[0], (Rect{34, l.buttons[0].y, 38 + 18, 15 + 10}));
  EXPECT_EQ(l.buttons[1].x, l.buttons[0].maxX() + 4);
  EXPECT_EQ(l.buttons[2].x, l.buttons[1].maxX() + 4);
  EXPECT_EQ(l.buttons[3].maxX(), 18 + 264 - 16);
  EXPECT_EQ(l.buttons[3].width, 22 + 18);
  EXPECT_GT(l.buttons[3].x, l.buttons[2].maxX() + 4);
}

TEST(ControlPanelLayout, ARowTooWideForTheSpaceBetweenThePaddingsSpreadsIntoThemKeepingItsOwn) {
  // 179 of titles, 18 × 4 of padding and 4 × 3 of spacing: 263, 31 more than the 232 between the
  // card's paddings, 1 less than the card.
  ControlPanelMeasures m = typical();
  m.buttonTitles = {Size{50, 15}, Size{65, 15}, Size{38, 15}, Size{26, 15}};
  const ControlPanelLayout l = ControlPanelLayout::compute(m);
  for (std::size_t i = 0; i < l.buttons.size(); ++i) {
    EXPECT_EQ(l.buttons[i].width, m.buttonTitles[i].width + 18) << i;
    EXPECT_EQ(l.buttons[i].y, l.buttons[0].y) << i;
  }
  EXPECT_EQ(l.buttons[0].x, 34 - 15.5);
  EXPECT_EQ(l.buttons[1].x, l.buttons[0].maxX() + 4);
  EXPECT_EQ(l.buttons[2].x, l.buttons[1].maxX() + 4);
  EXPECT_EQ(l.buttons[3].maxX(), 18 + 264 - 16 + 15.5);
  EXPECT_EQ(l.card.height, ControlPanelLayout::compute(typical()).card.height);
}

TEST(ControlPanelLayout, OnlyARowTooWideForTheWholeCardGivesUpPaddingAndStaysInsideIt) {
  // 220 of titles leave 264 − 220 − 12 = 32 for eight sides: 4 each.
  ControlPanelMeasures m = typical();
  m.buttonTitles = {Size{60, 15}, Size{80, 15}, Size{45, 15}, Size{35, 15}};
  const ControlPanelLayout l = ControlPanelLayout::compute(m);
  for (std::size_t i = 0; i < l.buttons.size(); ++i) {
    EXPECT_EQ(l.buttons[i].width, m.buttonTitles[i].width + 8) << i;
    EXPECT_EQ(l.buttons[i].height, 25) << i;
  }
  EXPECT_EQ(l.buttons[0].x, l.card.x);
  for (std::size_t i = 0; i + 1 < l.buttons.size(); ++i) {
    EXPECT_LE(l.buttons[i].maxX() + 4, l.buttons[i + 1].x + 1e-9) << i;
  }
  EXPECT_EQ(l.buttons[3].maxX(), l.card.maxX());
}

TEST(ControlPanelLayout, ALongVersionDoesNotWidenTheCard) {
  ControlPanelMeasures m = typical();
  m.version.width = 900;
  const ControlPanelLayout l = ControlPanelLayout::compute(m);
  EXPECT_EQ(l.card.width, 264);
  EXPECT_EQ(l.version.height, 13);
  EXPECT_EQ(l.windowSize, ControlPanelLayout::compute(typical()).windowSize);
}

}  // namespace
}  // namespace brimly
