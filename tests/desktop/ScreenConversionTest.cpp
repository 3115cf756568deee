#include "desktop/ScreenConversion.h"
#include "panel/views/QtGeometry.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(ScreenConversion, QtRectangleKeepsItsNumbers) {
  EXPECT_EQ(toRect(QRect(1920, 100, 1280, 800)), (Rect{1920, 100, 1280, 800}));
}

TEST(TopStrip, DesktopPanelAtTheTopIsItsThickness) {
  EXPECT_EQ(topStripThickness(QRect(0, 0, 1920, 1080), QRect(0, 27, 1920, 1053)), 27.0);
}

TEST(TopStripEdge, NothingReservedIsZero) {
  EXPECT_EQ(topStripThickness(QRect(0, 0, 1920, 1080), QRect(0, 0, 1920, 1080)), 0.0);
}

TEST(TopStripEdge, PanelAtTheBottomOrSideIsNotATopStrip) {
  EXPECT_EQ(topStripThickness(QRect(0, 0, 1920, 1080), QRect(0, 0, 1920, 1040)), 0.0);
  EXPECT_EQ(topStripThickness(QRect(0, 0, 1920, 1080), QRect(48, 0, 1872, 1080)), 0.0);
}

TEST(TopStripEdge, SecondScreenMeasuresFromItsOwnTop) {
  EXPECT_EQ(topStripThickness(QRect(1920, 100, 1280, 800), QRect(1920, 132, 1280, 768)), 32.0);
}

TEST(TopStripEdge, UsableAreaOutsideTheScreenOrEmptyCountsAsNothing) {
  EXPECT_EQ(topStripThickness(QRect(0, 0, 1920, 1080), QRect(0, 30, 3840, 1050)), 0.0);
  EXPECT_EQ(topStripThickness(QRect(0, 0, 1920, 1080), QRect()), 0.0);
}

}  // namespace
}  // namespace brimly
