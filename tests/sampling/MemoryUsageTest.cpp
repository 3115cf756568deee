#include "sampling/MemoryUsage.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

MemoryReading reading(VmStatistics vm, std::uint64_t pageSize, std::uint64_t physical) {
  MemoryReading result;
  result.vm = vm;
  result.pageSize = pageSize;
  result.physicalBytes = physical;
  return result;
}

TEST(MemoryUsage, UsedIsActivePlusWiredPlusCompressedPages) {
  // 16 KiB pages: (400000 + 150000 + 50000) × 16384 bytes of 16 GiB.
  const auto usage = MemoryUsage::from(
      reading(VmStatistics{400'000, 150'000, 50'000, 300'000, 100'000}, 16'384, 17'179'869'184));
  ASSERT_TRUE(usage.has_value());
  EXPECT_EQ(usage->usedBytes, 9'830'400'000u);
  EXPECT_EQ(usage->totalBytes, 17'179'869'184u);
  EXPECT_DOUBLE_EQ(usage->fraction, 9'830'400'000.0 / 17'179'869'184.0);
}

TEST(MemoryUsage, InactiveAndFreePagesDoNotCount) {
  const auto usage = MemoryUsage::from(reading(VmStatistics{0, 0, 0, 999, 999}, 4096, 1 << 30));
  ASSERT_TRUE(usage.has_value());
  EXPECT_EQ(usage->usedBytes, 0u);
  EXPECT_EQ(usage->fraction, 0.0);
}

TEST(MemoryUsage, FailedStatisticsGiveNothing) {
  MemoryReading failed;
  failed.pageSize = 4096;
  failed.physicalBytes = 1 << 30;
  EXPECT_FALSE(MemoryUsage::from(failed).has_value());
}

TEST(MemoryUsage, UnknownPhysicalSizeGivesNothing) {
  EXPECT_FALSE(MemoryUsage::from(reading(VmStatistics{10, 10, 10, 0, 0}, 4096, 0)).has_value());
}

TEST(MemoryUsage, FractionIsClampedToOne) {
  const auto usage = MemoryUsage::from(reading(VmStatistics{1000, 0, 0, 0, 0}, 4096, 4096));
  ASSERT_TRUE(usage.has_value());
  EXPECT_EQ(usage->fraction, 1.0);
  EXPECT_EQ(usage->usedBytes, 4'096'000u);  // the byte count itself is not clamped
}

TEST(MemoryUsage, FiguresBeyondSixtyFourBitsGiveNothing) {
  const std::uint64_t huge = 1ull << 62;
  EXPECT_FALSE(MemoryUsage::from(reading(VmStatistics{huge, huge, 0, 0, 0}, 1ull << 20, 1 << 30))
                   .has_value());
}

}  // namespace
}  // namespace brimly
