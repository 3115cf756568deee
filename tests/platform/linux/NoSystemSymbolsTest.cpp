#include <gtest/gtest.h>

#include "platform/SystemSymbols.h"

namespace brimly {
namespace {

TEST(NoSystemSymbols, LinuxHasNoSymbolLibrarySoBundledSymbolsStandIn) {
  EXPECT_EQ(renderSystemSymbol("speedometer", 32), std::nullopt);
  EXPECT_EQ(renderSystemSymbol("gauge.with.dots.needle.bottom.50percent", 18), std::nullopt);
  EXPECT_EQ(renderSystemSymbol("", 0), std::nullopt);
}

}  // namespace
}  // namespace brimly
