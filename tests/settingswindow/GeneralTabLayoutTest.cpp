#include "settingswindow/GeneralTabLayout.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(GeneralTabLayout, NoRowsLeaveOnlyTheCaption) {
  const GeneralTabGeometry tab = GeneralTabLayout::layout({0, 0, 324, 329}, Size{60, 12}, 0, 22);
  EXPECT_EQ(tab.sectionLabel, (Rect{0, 0, 60, 12}));
  EXPECT_TRUE(tab.rows.empty());
}

TEST(GeneralTabLayout, RowsStart12BelowTheCaptionAnd14Apart) {
  const GeneralTabGeometry tab = GeneralTabLayout::layout({18, 121, 324, 329}, Size{60, 12}, 3, 22);
  EXPECT_EQ(tab.sectionLabel, (Rect{18, 121, 60, 12}));
  ASSERT_EQ(tab.rows.size(), 3u);
  EXPECT_EQ(tab.rows[0], (Rect{18, 145, 324, 22}));
  EXPECT_EQ(tab.rows[1], (Rect{18, 181, 324, 22}));
  EXPECT_EQ(tab.rows[2], (Rect{18, 217, 324, 22}));
}

}  // namespace
}  // namespace brimly
