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

TEST(DiskUsageEdge, ReportedUsedSpaceIsMeasuredAgainstUsedPlusAvailableRoundedUp) {
  // 17.5 % of the space users can have is used; the rest of the volume is held back.
  const auto usage = DiskUsage::from(DiskCapacities{84745428992, 270553174016, 17999851520});
  ASSERT_TRUE(usage.has_value());
  EXPECT_EQ(usage->usedBytes, 17999851520);
  EXPECT_EQ(usage->totalBytes, 270553174016);
  EXPECT_EQ(usage->usePercent, 18);
  EXPECT_DOUBLE_EQ(usage->fraction(), 0.18);
}

TEST(DiskUsageEdge, UsePercentRoundsAnyRemainderUp) {
  EXPECT_EQ(DiskUsage::from(DiskCapacities{999, 1000, 1})->usePercent, 1);
  EXPECT_EQ(DiskUsage::from(DiskCapacities{1, 1000, 999})->usePercent, 100);
  EXPECT_EQ(DiskUsage::from(DiskCapacities{750, 1000, 250})->usePercent, 25);
  EXPECT_EQ(DiskUsage::from(DiskCapacities{0, 1000, 0})->usePercent, 0);
}

TEST(DiskUsageEdge, NothingUsedNorAvailableIsZeroPercent) {
  EXPECT_EQ(DiskUsage::from(DiskCapacities{0, 1000, 0})->fraction(), 0.0);
}

TEST(DiskUsageEdge, ReportedUsedSpaceIsCappedAtTheTotal) {
  const auto over = DiskUsage::from(DiskCapacities{0, 1000, 5000});
  EXPECT_EQ(over->usedBytes, 1000);
  EXPECT_EQ(over->fraction(), 1.0);
  const auto negative = DiskUsage::from(DiskCapacities{500, 1000, -20});
  EXPECT_EQ(negative->usedBytes, 0);
  EXPECT_EQ(negative->usePercent, 0);
}

TEST(DiskUsageEdge, NegativeAvailableBesideReportedUsedKeepsTheLastFigures) {
  EXPECT_FALSE(DiskUsage::from(DiskCapacities{-1, 1000, 10}).has_value());
}

TEST(DiskUsageEdge, ExabyteVolumesDoNotOverflow) {
  const std::int64_t total = std::numeric_limits<std::int64_t>::max();
  const auto usage = DiskUsage::from(DiskCapacities{total / 2, total, total / 2});
  ASSERT_TRUE(usage.has_value());
  EXPECT_EQ(usage->usePercent, 50);
}

TEST(DiskUsage, UsedIsTotalMinusAvailable) {
  const auto usage = DiskUsage::from(DiskCapacities{300, 1000});
  ASSERT_TRUE(usage.has_value());
  EXPECT_EQ(*usage, (DiskUsage{700, 1000}));
  EXPECT_EQ(usage->usePercent, std::nullopt);
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
