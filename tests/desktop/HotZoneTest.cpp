#include "desktop/HotZone.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

using Zone = HoverZonePort::Zone;

TEST(HotZoneEdge, NoZoneTakesNothing) {
  EXPECT_TRUE(hotZoneRect(Zone::none, RootViewMetrics::forNotch({200, 32}, false), 600).isEmpty());
}

TEST(HotZoneEdge, AnOddNotchIsCoveredByWholePoints) {
  // 185 wide on a 600-point surface: 207.5 to 392.5.
  EXPECT_EQ(hotZoneRect(Zone::closedOutline, RootViewMetrics::forNotch({185, 32}, false), 600),
            QRect(207, 0, 186, 32));
}

TEST(HotZone, ClosedItIsTheClosedCardAtTheTopCentre) {
  EXPECT_EQ(hotZoneRect(Zone::closedOutline, RootViewMetrics::forNotch({200, 32}, false), 600),
            QRect(200, 0, 200, 32));
}

TEST(HotZone, OpenItIsTheWholeOpenCard) {
  EXPECT_EQ(hotZoneRect(Zone::openCard, RootViewMetrics::forNotch({200, 32}, false), 600),
            QRect(0, 0, 600, 148));
  EXPECT_EQ(hotZoneRect(Zone::openCard, RootViewMetrics::forNotch({200, 40}, false), 600),
            QRect(0, 0, 600, 156));
}

TEST(HotZone, ALargerPanelsOpenZoneIsItsLargerCardAndItsClosedOneTheNotch) {
  const auto metrics = RootViewMetrics::forNotch({200, 32}, false, 1.25);
  EXPECT_EQ(hotZoneRect(Zone::openCard, metrics, 750), QRect(0, 0, 750, 177));
  EXPECT_EQ(hotZoneRect(Zone::closedOutline, metrics, 750), QRect(275, 0, 200, 32));
}

}  // namespace
}  // namespace brimly
