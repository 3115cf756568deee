#include "platform/linux/LinuxMonotonicClock.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(LinuxMonotonicClock, CountsForwardFromBoot) {
  const LinuxMonotonicClock clock;
  const double first = clock.nowSeconds();
  const double second = clock.nowSeconds();
  EXPECT_GT(first, 0.0);
  EXPECT_GE(second, first);
}

}  // namespace
}  // namespace brimly
