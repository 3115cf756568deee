#include "panel/DesktopCoordinates.h"

#include <gtest/gtest.h>

#include "panel/NotchGeometry.h"

namespace brimly {
namespace {

// --- Edge cases ---

TEST(DesktopCoordinates, PrimaryScreenSitsAtTheOrigin) {
  const DesktopCoordinates desktop({0, 0, 1920, 1080});
  EXPECT_EQ(desktop.toBottomLeft(Rect{0, 0, 1920, 1080}), (Rect{0, 0, 1920, 1080}));
}

TEST(DesktopCoordinates, PointerOnTheTopRowLiesOnTheScreensTopEdge) {
  const DesktopCoordinates desktop({0, 0, 1920, 1080});
  EXPECT_EQ(desktop.toBottomLeft(Point{960, 0}), (Point{960, 1080}));
  EXPECT_EQ(desktop.toBottomLeft(Point{960, 1079}), (Point{960, 1}));
}

TEST(DesktopCoordinates, PrimaryScreenNotAtTheDesktopOriginStillSitsAtTheOrigin) {
  // A screen stacked above the primary one puts the primary lower on the X11 root window.
  const Rect primary{0, 1080, 1920, 1080};
  const Rect above{0, 0, 2560, 1080};
  const DesktopCoordinates desktop(primary);
  EXPECT_EQ(desktop.axis(), 2160);
  EXPECT_EQ(desktop.toBottomLeft(primary), (Rect{0, 0, 1920, 1080}));
  EXPECT_EQ(desktop.toBottomLeft(above), (Rect{0, 1080, 2560, 1080}));
}

TEST(DesktopCoordinates, ScreensBelowThePrimaryGetNegativeY) {
  const DesktopCoordinates desktop({0, 0, 1920, 1080});
  EXPECT_EQ(desktop.toBottomLeft(Rect{200, 1080, 1280, 1024}), (Rect{200, -1024, 1280, 1024}));
}

TEST(DesktopCoordinates, PanelOverTheNotchLandsAtTheDesktopsTopCentre) {
  const Rect primary{0, 0, 1920, 1080};
  const DesktopCoordinates desktop(primary);
  const Rect panel = NotchGeometry::panelFrame(desktop.toBottomLeft(primary), {200, 32});
  EXPECT_EQ(desktop.toTopLeft(panel), (Rect{660, 0, 600, 148}));
}

TEST(DesktopCoordinates, DefaultFlipsAroundZero) {
  const DesktopCoordinates desktop;
  EXPECT_EQ(desktop.axis(), 0);
  EXPECT_EQ(desktop.toBottomLeft(Rect{10, 20, 30, 40}), (Rect{10, -60, 30, 40}));
}

// --- Properties ---

TEST(DesktopCoordinates, ConversionsUndoEachOther) {
  const DesktopCoordinates desktop({1920, 120, 2560, 1440});
  for (const Rect r : {Rect{0, 0, 1, 1}, Rect{-300, 50.5, 600, 148}, Rect{4000, -900, 10, 0}}) {
    EXPECT_EQ(desktop.toTopLeft(desktop.toBottomLeft(r)), r);
    EXPECT_EQ(desktop.toBottomLeft(desktop.toTopLeft(r)), r);
  }
  for (const Point p : {Point{0, 0}, Point{-12.5, 1559}, Point{3000, 7}}) {
    EXPECT_EQ(desktop.toTopLeft(desktop.toBottomLeft(p)), p);
    EXPECT_EQ(desktop.toBottomLeft(desktop.toTopLeft(p)), p);
  }
}

TEST(DesktopCoordinates, XAndSizesAreUnchanged) {
  const DesktopCoordinates desktop({0, 0, 1512, 982});
  const Rect r = desktop.toBottomLeft(Rect{37, 11, 600, 148});
  EXPECT_EQ(r.x, 37);
  EXPECT_EQ(r.width, 600);
  EXPECT_EQ(r.height, 148);
  EXPECT_EQ(r.maxY(), 982 - 11);  // the rectangle's top edge is its top-left y mirrored
}

}  // namespace
}  // namespace brimly
