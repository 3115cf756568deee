#include "settingswindow/SettingRowLayout.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(SettingRowLayout, ALongTitleStopsEightPointsBeforeTheSwitch) {
  const SettingRowGeometry row = SettingRowLayout::layout(324.0, Size{400.0, 15.0}, Size{30, 18});
  EXPECT_EQ(row.title.x, 26.0);
  EXPECT_EQ(row.title.maxX(), row.toggle.x - 8.0);
}

TEST(SettingRowLayout, ARowTooNarrowForItsTitleGivesTheTitleNoRoom) {
  const SettingRowGeometry row = SettingRowLayout::layout(40.0, Size{80.0, 15.0}, Size{30, 18});
  EXPECT_EQ(row.title.width, 0.0);
}

TEST(SettingRowLayout, SymbolFrameTitleAndSwitchSideBySide) {
  const SettingRowGeometry row = SettingRowLayout::layout(324.0, Size{120.0, 15.0}, Size{30, 18});
  EXPECT_EQ(row.size, (Size{324.0, 18.0}));
  EXPECT_EQ(row.symbolFrame, (Rect{0.0, 0.0, 18.0, 18.0}));
  EXPECT_EQ(row.symbol, (Rect{2.75, 2.75, 12.5, 12.5}));
  EXPECT_EQ(row.title, (Rect{26.0, 1.5, 120.0, 15.0}));
  EXPECT_EQ(row.toggle, (Rect{294.0, 0.0, 30.0, 18.0}));
}

TEST(SettingRowLayout, RowIsAsTallAsItsTallestPart) {
  EXPECT_EQ(SettingRowLayout::layout(300.0, Size{50.0, 24.0}, Size{30, 18}).size.height, 24.0);
  EXPECT_EQ(SettingRowLayout::layout(300.0, Size{50.0, 8.0}, Size{20, 10}).size.height, 12.5);
}

}  // namespace
}  // namespace brimly
