// The disk cell of the panel on Linux, from statvfs's figures to the texts shown: the same used
// space and percentage as `df`.
#include <gtest/gtest.h>

#include "LinuxTestSupport.h"
#include "platform/linux/LinuxPlatformFactory.h"
#include "sampling/MetricSampler.h"
#include "usage/MetricCellContent.h"

namespace brimly {
namespace {

using testing::FakeFileSystemStats;
using testing::FakeNvml;
using testing::FakeNvmlState;

MetricCellContent diskCellFor(const FileSystemStats& stats) {
  LinuxSources sources;
  sources.files = testing::recordingFixture("intel-laptop-discharging");
  sources.fileSystemStats = std::make_shared<FakeFileSystemStats>(stats);
  sources.makeNvml = [] { return std::make_unique<FakeNvml>(std::make_shared<FakeNvmlState>()); };
  const LinuxPlatformFactory platform(std::move(sources));
  MetricSampler sampler(platform);
  return MetricCellContent::of(MetricKind::disk, sampler.sample(), false);
}

// A 252 GiB root file system of which 17 GiB are used, 79 GiB free to users and the remaining
// 157 GiB held back (a large root reserve). `df -B1 /` prints Size 270553174016, Used
// 17999851520, Avail 84745428992, Use% 18%.
constexpr FileSystemStats kLargeReserve{4096, 4096, 66'053'021, 61'658'526, 20'689'802};

// A typical ext4 volume with 5 % reserved: df prints Used 300056236032 of 500099448832, Avail
// 175038242816, Use% 64%.
constexpr FileSystemStats kExt4{4096, 4096, 122'094'592, 48'838'675, 42'733'946};

TEST(LinuxDiskFigureEdge, LargeReserveCountsNeitherAsUsedNorAsFree) {
  const MetricCellContent cell = diskCellFor(kLargeReserve);
  EXPECT_EQ(cell.primary, "18%");
  EXPECT_EQ(cell.secondary, "17 / 252 GB");
  EXPECT_DOUBLE_EQ(cell.barValue, 0.18);
}

TEST(LinuxDiskFigureEdge, NearlyFullVolumeRoundsUpAsDfDoes) {
  // 999 of 1000 blocks used, none held back: 99.9 % shows as 100 %, as df shows it.
  EXPECT_EQ(diskCellFor({4096, 4096, 1000, 1, 1}).primary, "100%");
  // One block in use out of 1000: df says 1 %.
  EXPECT_EQ(diskCellFor({4096, 4096, 1000, 999, 999}).primary, "1%");
}

TEST(LinuxDiskFigure, TypicalExt4VolumeShowsDfsUsePercent) {
  const MetricCellContent cell = diskCellFor(kExt4);
  EXPECT_EQ(cell.primary, "64%");
  EXPECT_EQ(cell.secondary, "279 / 466 GB");
}

TEST(LinuxDiskFigure, VolumeWithoutReserveIsUsedOverSize) {
  const MetricCellContent cell = diskCellFor({4096, 4096, 1000, 250, 250});
  EXPECT_EQ(cell.primary, "75%");
  EXPECT_DOUBLE_EQ(cell.barValue, 0.75);
}

}  // namespace
}  // namespace brimly
