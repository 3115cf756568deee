#include "app/ScreenConversion.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(ScreenConversion, SingleScreenFrameStartsAtTheBottomLeft) {
  const QRect screen(0, 0, 1512, 982);
  EXPECT_EQ(bottomLeftFrame(screen, desktopHeight({screen})), (Rect{0, 0, 1512, 982}));
}

TEST(ScreenConversion, LowerScreenOfTwoSideBySideIsFlippedAgainstTheTallerOne) {
  const QRect tall(0, 0, 1920, 1200);
  const QRect shorter(1920, 0, 1280, 800);
  const double height = desktopHeight({tall, shorter});
  EXPECT_EQ(height, 1200);
  EXPECT_EQ(bottomLeftFrame(shorter, height), (Rect{1920, 400, 1280, 800}));
}

TEST(ScreenConversionEdge, ScreenStackedAboveGetsTheHigherFrame) {
  const QRect upper(0, 0, 1280, 800);
  const QRect lower(0, 800, 1512, 982);
  const double height = desktopHeight({upper, lower});
  EXPECT_EQ(bottomLeftFrame(upper, height), (Rect{0, 982, 1280, 800}));
  EXPECT_EQ(bottomLeftFrame(lower, height), (Rect{0, 0, 1512, 982}));
}

TEST(ScreenConversionEdge, NoScreensHaveNoHeight) {
  EXPECT_EQ(desktopHeight({}), 0.0);
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
