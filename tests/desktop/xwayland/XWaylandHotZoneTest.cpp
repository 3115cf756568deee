#include "desktop/xwayland/XWaylandHotZone.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

using Zone = HoverZonePort::Zone;

// A Linux top bar 32 points high, and the fallback width of the closed outline.
const RootViewMetrics kMetrics = RootViewMetrics::forNotch({200, 32}, false);

std::vector<QRect> region(Zone zone, double ratio = 1.0, int viewWidth = 600) {
  return XWaylandHotZone::inputRegion(zone, kMetrics, viewWidth, ratio);
}

// --- Edge cases ---

TEST(XWaylandHotZoneRegionEdge, NoZoneIsAPixelOutsideTheWindow) {
  // Not an empty region: GNOME's compositor reads that as the whole window.
  EXPECT_EQ(region(Zone::none), (std::vector<QRect>{QRect(-1, -1, 1, 1)}));
  EXPECT_EQ(region(Zone::none, 2.0), (std::vector<QRect>{QRect(-1, -1, 1, 1)}));
}

TEST(XWaylandHotZoneRegionEdge, AFractionalRatioCoversEveryPixelTheZoneTouches) {
  // 200 × 32 points at 1.25: 250 × 40 pixels from x = 250.
  EXPECT_EQ(region(Zone::closedOutline, 1.25), (std::vector<QRect>{QRect(250, 0, 250, 40)}));
  // An odd view width puts the closed outline half a point off the grid: the whole point counts.
  EXPECT_EQ(region(Zone::closedOutline, 1.0, 601), (std::vector<QRect>{QRect(200, 0, 201, 32)}));
}

// --- Properties ---

TEST(XWaylandHotZoneRegion, ClosedItIsTheClosedOutlineAtTheTopCentre) {
  EXPECT_EQ(region(Zone::closedOutline), (std::vector<QRect>{QRect(200, 0, 200, 32)}));
}

TEST(XWaylandHotZoneRegion, OpenItIsTheWholeCard) {
  EXPECT_EQ(region(Zone::openCard), (std::vector<QRect>{QRect(0, 0, 600, 148)}));
}

TEST(XWaylandHotZoneRegion, ItIsCountedInDevicePixels) {
  EXPECT_EQ(region(Zone::closedOutline, 2.0), (std::vector<QRect>{QRect(400, 0, 400, 64)}));
  EXPECT_EQ(region(Zone::openCard, 2.0), (std::vector<QRect>{QRect(0, 0, 1200, 296)}));
}

}  // namespace
}  // namespace brimly
