#include "platform/linux/LinuxDiskPort.h"

#include <gtest/gtest.h>

#include "LinuxTestSupport.h"

namespace brimly {
namespace {

using testing::FakeFileSystemStats;

// A typical ext4 volume with 5 % reserved for root: df shows Size 500099448832 and Avail
// 175038242816.
constexpr FileSystemStats kExt4{4096, 4096, 122094592, 48838675, 42733946};

TEST(LinuxDiskPort, AvailableIsWhatAUserMayStillFillAndUsedIsWhatIsNotFree) {
  const auto stats = std::make_shared<FakeFileSystemStats>(kExt4);
  const auto capacities = LinuxDiskPort(stats).readDiskCapacities();
  ASSERT_TRUE(capacities.has_value());
  EXPECT_EQ(capacities->total, 500099448832);
  EXPECT_EQ(capacities->available, 175038242816);
  EXPECT_EQ(capacities->used, 300056236032);
  EXPECT_EQ(stats->paths(), (std::vector<std::string>{"/"}));
}

TEST(LinuxDiskPort, AsksAboutTheGivenPath) {
  const auto stats = std::make_shared<FakeFileSystemStats>(kExt4);
  LinuxDiskPort(stats, "/srv/root").readDiskCapacities();
  EXPECT_EQ(stats->paths(), (std::vector<std::string>{"/srv/root"}));
}

TEST(LinuxDiskPort, AFailedCallGivesNothing) {
  const auto stats = std::make_shared<FakeFileSystemStats>(std::nullopt);
  EXPECT_EQ(LinuxDiskPort(stats).readDiskCapacities(), std::nullopt);
}

TEST(DiskCapacities, LargeReserveIsNeitherUsedNorAvailable) {
  // df -B1 /: Size 270553174016, Used 17999851520, Avail 84745428992.
  const DiskCapacities capacities =
      diskCapacitiesFromStats({4096, 4096, 66'053'021, 61'658'526, 20'689'802});
  EXPECT_EQ(capacities.total, 270553174016);
  EXPECT_EQ(capacities.used, 17999851520);
  EXPECT_EQ(capacities.available, 84745428992);
}

TEST(DiskCapacities, MoreFreeThanAllBlocksMeansNothingUsed) {
  EXPECT_EQ(diskCapacitiesFromStats({4096, 4096, 100, 200, 50}).used, 0);
}

TEST(DiskCapacities, WithoutAFragmentSizeTheBlockSizeIsTheUnit) {
  const DiskCapacities capacities = diskCapacitiesFromStats({0, 512, 1000, 500, 400});
  EXPECT_EQ(capacities.total, 512000);
  EXPECT_EQ(capacities.available, 204800);
  EXPECT_EQ(capacities.used, 256000);
}

TEST(DiskCapacities, AZeroUnitLeavesAllOut) {
  const DiskCapacities capacities = diskCapacitiesFromStats({0, 0, 1000, 500, 400});
  EXPECT_EQ(capacities.total, std::nullopt);
  EXPECT_EQ(capacities.available, std::nullopt);
  EXPECT_EQ(capacities.used, std::nullopt);
}

TEST(DiskCapacities, ProductsBeyond63BitsAreLeftOut) {
  const DiskCapacities capacities = diskCapacitiesFromStats({4096, 4096, UINT64_MAX / 2, 0, 1000});
  EXPECT_EQ(capacities.total, std::nullopt);
  EXPECT_EQ(capacities.available, 4096000);
}

TEST(DiskCapacities, AvailableNeverExceedsTotal) {
  const DiskCapacities capacities = diskCapacitiesFromStats({4096, 4096, 100, 200, 300});
  EXPECT_EQ(capacities.total, 409600);
  EXPECT_EQ(capacities.available, 409600);
}

TEST(DiskCapacities, AnEmptyFileSystemIsAllZero) {
  const DiskCapacities capacities = diskCapacitiesFromStats({4096, 4096, 0, 0, 0});
  EXPECT_EQ(capacities.total, 0);
  EXPECT_EQ(capacities.available, 0);
  EXPECT_EQ(capacities.used, 0);
}

TEST(PosixFileSystemStats, TheRootFileSystemHasACapacity) {
  const auto stats = PosixFileSystemStats().statistics("/");
  ASSERT_TRUE(stats.has_value());
  const DiskCapacities capacities = diskCapacitiesFromStats(*stats);
  ASSERT_TRUE(capacities.total && capacities.available && capacities.used);
  EXPECT_GT(*capacities.total, 0);
  EXPECT_LE(*capacities.available, *capacities.total);
  EXPECT_LE(*capacities.used, *capacities.total);
}

TEST(PosixFileSystemStats, AMissingPathGivesNothing) {
  EXPECT_EQ(PosixFileSystemStats().statistics("/no/such/brimly/path"), std::nullopt);
}

}  // namespace
}  // namespace brimly
