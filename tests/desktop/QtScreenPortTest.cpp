#include "desktop/QtScreenPort.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>

namespace brimly {
namespace {

// Runs on Qt's offscreen platform, which has one screen and reserves nothing at its top.
TEST(QtScreenPort, OffscreenDesktopIsOneScreenFromTheOrigin) {
  QtScreenPort port;
  const QRect geometry = QGuiApplication::primaryScreen()->geometry();
  const std::vector<ScreenDescription> screens = port.screens();
  ASSERT_EQ(screens.size(), 1u);
  EXPECT_EQ(screens[0].frame, (Rect{0, 0, static_cast<double>(geometry.width()),
                                    static_cast<double>(geometry.height())}));
  EXPECT_EQ(port.mainScreen(), screens[0]);
}

TEST(QtScreenPortEdge, LinuxScreensHaveNoCameraHousing) {
  const std::optional<ScreenDescription> main = QtScreenPort().mainScreen();
  ASSERT_TRUE(main.has_value());
  EXPECT_EQ(main->safeAreaInsets, EdgeInsets{});
  EXPECT_EQ(main->auxiliaryTopLeftArea, std::nullopt);
  EXPECT_EQ(main->auxiliaryTopRightArea, std::nullopt);
  EXPECT_FALSE(main->hasCameraHousing());
}

TEST(QtScreenPortEdge, NoTopPanelMeansNoTopBar) {
  EXPECT_EQ(QtScreenPort().statusBarThickness(), 0.0);
}

TEST(QtScreenPort, DesktopIsFlippedAroundThePrimaryScreensBottomEdge) {
  const QRect geometry = QGuiApplication::primaryScreen()->geometry();
  const DesktopCoordinates desktop = QtScreenPort::desktopCoordinates();
  EXPECT_EQ(desktop.axis(), geometry.y() + geometry.height());
  // The top row of the primary screen is its top edge in the panel's coordinates.
  EXPECT_EQ(desktop.toBottomLeft(Point{10, 0}).y, QtScreenPort().mainScreen()->frame.maxY());
}

}  // namespace
}  // namespace brimly
