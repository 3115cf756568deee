#include "audit/PowerStateText.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(PowerStateText, CasesWithAFlowShowTheWattsInParentheses) {
  EXPECT_EQ(powerStateText(PowerState::discharging(7.25)), "discharging(watts: 7.25)");
  EXPECT_EQ(powerStateText(PowerState::charging(12.0)), "charging(watts: 12.0)");
  EXPECT_EQ(powerStateText(PowerState::discharging(16.5)), "discharging(watts: 16.5)");
}

TEST(PowerStateText, ZeroWattsStillShowADigitAfterThePoint) {
  EXPECT_EQ(powerStateText(PowerState::discharging(0.0)), "discharging(watts: 0.0)");
}

TEST(PowerStateText, CasesWithoutAFlowAreJustTheirName) {
  EXPECT_EQ(powerStateText(PowerState::acIdle()), "acIdle");
  EXPECT_EQ(powerStateText(PowerState::unknown()), "unknown");
  EXPECT_EQ(powerStateText(PowerState()), "unknown");
}

TEST(PowerStateText, WattsUseTheShortestRoundTripForm) {
  EXPECT_EQ(powerStateText(PowerState::charging(0.1 + 0.2)),
            "charging(watts: 0.30000000000000004)");
}

}  // namespace
}  // namespace brimly
