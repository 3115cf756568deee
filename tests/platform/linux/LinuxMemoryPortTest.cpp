#include "platform/linux/LinuxMemoryPort.h"

#include <gtest/gtest.h>

#include "LinuxTestSupport.h"
#include "TemporaryTree.h"
#include "platform/linux/RootedFileSystem.h"

namespace brimly {
namespace {

using testing::recordingFixture;

MemoryReading memoryOf(std::string_view fixture) {
  return LinuxMemoryPort(recordingFixture(fixture)).readMemory();
}

std::uint64_t usedBytes(const MemoryReading& reading) {
  return reading.pageSize *
         (reading.vm->activePages + reading.vm->wiredPages + reading.vm->compressedPages);
}

TEST(LinuxMemoryPort, IntelLaptopAgreesWithFree) {
  const MemoryReading reading = memoryOf("intel-laptop-discharging");
  ASSERT_TRUE(reading.vm.has_value());
  EXPECT_EQ(usedBytes(reading), 7359295488u);
  EXPECT_EQ(reading.physicalBytes, 16108452ull * 1024);
  EXPECT_EQ(reading.swap, (SwapUsage{8589930496u, 536870912u}));
}

TEST(LinuxMemoryPort, AmdLaptopWithoutSwap) {
  const MemoryReading reading = memoryOf("amd-laptop-charging");
  ASSERT_TRUE(reading.vm.has_value());
  EXPECT_EQ(usedBytes(reading), (31457280ull - 25165824ull) * 1024);
  EXPECT_EQ(reading.swap, (SwapUsage{0, 0}));
}

TEST(LinuxMemoryPort, NvidiaDesktopWithUnusedSwap) {
  const MemoryReading reading = memoryOf("nvidia-desktop");
  ASSERT_TRUE(reading.vm.has_value());
  EXPECT_EQ(usedBytes(reading), (65536000ull - 52428800ull) * 1024);
  EXPECT_EQ(reading.swap, (SwapUsage{2097148ull * 1024, 0}));
}

TEST(LinuxMemoryPort, VirtualMachine) {
  const MemoryReading reading = memoryOf("vm-bare");
  ASSERT_TRUE(reading.vm.has_value());
  EXPECT_EQ(reading.vm->activePages, 4025296u - 3520612u);
  EXPECT_EQ(reading.physicalBytes, 4025296ull * 1024);
}

TEST(LinuxMemoryPort, SuspendedGpuLaptop) {
  const MemoryReading reading = memoryOf("suspended-dgpu");
  ASSERT_TRUE(reading.vm.has_value());
  EXPECT_EQ(reading.vm->activePages, 2000000u);
}

TEST(LinuxMemoryPort, BrokenContentGivesAnEmptyReading) {
  const MemoryReading reading = memoryOf("broken");
  EXPECT_EQ(reading.vm, std::nullopt);
  EXPECT_EQ(reading.physicalBytes, 0u);
  EXPECT_EQ(reading.swap, std::nullopt);
}

TEST(LinuxMemoryPort, AMissingFileGivesAnEmptyReading) {
  testing::TemporaryTree tree;
  const MemoryReading reading =
      LinuxMemoryPort(std::make_shared<RootedFileSystem>(tree.root())).readMemory();
  EXPECT_EQ(reading.vm, std::nullopt);
  EXPECT_EQ(reading.swap, std::nullopt);
  EXPECT_EQ(reading.physicalBytes, 0u);
}

TEST(LinuxMemoryPort, ReadsMeminfoOnceAndNothingElse) {
  const auto files = recordingFixture("intel-laptop-discharging");
  LinuxMemoryPort(files).readMemory();
  EXPECT_EQ(files->readsOf("proc/meminfo"), 1);
  EXPECT_EQ(files->totalReads(), 1);
}

}  // namespace
}  // namespace brimly
