#include "sampling/DiskUsage.h"

#include <gtest/gtest.h>

#include <limits>

namespace brimly {
namespace {

TEST(DiskUsage, RefreshedOnTheFirstCallAndEveryTenth) {
  std::vector<std::int64_t> refreshed;
  for (std::int64_t call = 1; call <= 41; ++call) {
    if (DiskUsage::isRefreshCall(call)) refreshed.push_back(call);
  }
  EXPECT_EQ(refreshed, (std::vector<std::int64_t>{1, 10, 20, 30, 40}));
}

TEST(DiskUsage, UsedIsTotalMinusAvailable) {
  const auto usage = DiskUsage::from(DiskCapacities{300, 1000});
  ASSERT_TRUE(usage.has_value());
  EXPECT_EQ(*usage, (DiskUsage{700, 1000}));
  EXPECT_DOUBLE_EQ(usage->fraction(), 0.7);
}

TEST(DiskUsage, FailedQueryOrMissingFiguresKeepTheLastFigures) {
  EXPECT_FALSE(DiskUsage::from(std::nullopt).has_value());
  EXPECT_FALSE(DiskUsage::from(DiskCapacities{std::nullopt, 1000}).has_value());
  EXPECT_FALSE(DiskUsage::from(DiskCapacities{300, std::nullopt}).has_value());
}

TEST(DiskUsage, TotalBelowOneByteKeepsTheLastFigures) {
  EXPECT_FALSE(DiskUsage::from(DiskCapacities{0, 0}).has_value());
  EXPECT_FALSE(DiskUsage::from(DiskCapacities{0, -5}).has_value());
  EXPECT_TRUE(DiskUsage::from(DiskCapacities{0, 1}).has_value());
}

TEST(DiskUsage, DifferenceThatCannotBeRepresentedKeepsTheLastFigures) {
  const auto lowest = std::numeric_limits<std::int64_t>::min();
  EXPECT_FALSE(DiskUsage::from(DiskCapacities{lowest, 1000}).has_value());
}

TEST(DiskUsage, FractionIsClampedAndZeroWithoutATotal) {
  EXPECT_EQ((DiskUsage{-50, 1000}).fraction(), 0.0);  // more available than total
  EXPECT_EQ((DiskUsage{2000, 1000}).fraction(), 1.0);
  EXPECT_EQ((DiskUsage{0, 0}).fraction(), 0.0);
}

}  // namespace
}  // namespace brimly
