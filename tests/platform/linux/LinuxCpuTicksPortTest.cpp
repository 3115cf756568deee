#include "platform/linux/LinuxCpuTicksPort.h"

#include <gtest/gtest.h>

#include "LinuxTestSupport.h"
#include "TemporaryTree.h"
#include "platform/linux/RootedFileSystem.h"

namespace brimly {
namespace {

using testing::recordingFixture;

std::optional<CpuTicks> ticksOf(std::string_view fixture) {
  return LinuxCpuTicksPort(recordingFixture(fixture)).readCpuTicks();
}

TEST(LinuxCpuTicksPort, IntelLaptop) {
  // user; system + irq + softirq + steal; idle + iowait; nice
  EXPECT_EQ(ticksOf("intel-laptop-discharging"), (CpuTicks{46000, 16600, 1210300, 180}));
}

TEST(LinuxCpuTicksPort, AmdLaptop) {
  EXPECT_EQ(ticksOf("amd-laptop-charging"), (CpuTicks{982211, 310044, 19850132, 1201}));
}

TEST(LinuxCpuTicksPort, NvidiaDesktop) {
  EXPECT_EQ(ticksOf("nvidia-desktop"), (CpuTicks{5512345, 1226355, 88323233, 3321}));
}

TEST(LinuxCpuTicksPort, VirtualMachineCountsStealAsBusy) {
  EXPECT_EQ(ticksOf("vm-bare"), (CpuTicks{6869, 8591, 670809, 0}));
}

TEST(LinuxCpuTicksPort, SuspendedGpuLaptop) {
  EXPECT_EQ(ticksOf("suspended-dgpu"), (CpuTicks{200, 100, 1700, 0}));
}

TEST(LinuxCpuTicksPort, ATruncatedLineGivesNothing) {
  EXPECT_EQ(ticksOf("broken"), std::nullopt);
}

TEST(LinuxCpuTicksPort, AMissingOrEmptyFileGivesNothing) {
  testing::TemporaryTree tree;
  LinuxCpuTicksPort port(std::make_shared<RootedFileSystem>(tree.root()));
  EXPECT_EQ(port.readCpuTicks(), std::nullopt);
  tree.write("proc/stat", "");
  EXPECT_EQ(port.readCpuTicks(), std::nullopt);
}

TEST(LinuxCpuTicksPort, ReadsProcStatExactlyOncePerReading) {
  const auto files = recordingFixture("intel-laptop-discharging");
  LinuxCpuTicksPort port(files);
  ASSERT_TRUE(port.readCpuTicks().has_value());
  EXPECT_EQ(files->readsOf("proc/stat"), 1);
  EXPECT_EQ(files->totalReads(), 1);
  port.readCpuTicks();
  EXPECT_EQ(files->readsOf("proc/stat"), 2);
}

TEST(LinuxCpuTicksPort, FollowsTheFileBetweenReadings) {
  testing::TemporaryTree tree;
  LinuxCpuTicksPort port(std::make_shared<RootedFileSystem>(tree.root()));
  tree.write("proc/stat", "cpu  46000 180 15500 1205000 5300 540 560 0 0 0\n");
  const CpuTicks a = *port.readCpuTicks();
  tree.write("proc/stat", "cpu  46105 185 15535 1205249 5303 541 562 0 0 0\n");
  const CpuTicks b = *port.readCpuTicks();
  EXPECT_EQ(b.user - a.user, 105u);
  EXPECT_EQ(b.nice - a.nice, 5u);
  EXPECT_EQ(b.system - a.system, 38u);
  EXPECT_EQ(b.idle - a.idle, 252u);
}

TEST(LinuxCpuTicksPort, ACounterThatStepsBackKeepsItsPreviousValue) {
  testing::TemporaryTree tree;
  LinuxCpuTicksPort port(std::make_shared<RootedFileSystem>(tree.root()));
  tree.write("proc/stat", "cpu  100 0 50 1000 40 0 0 0 0 0\n");
  const CpuTicks a = *port.readCpuTicks();
  // iowait fell by 30 while idle rose by 10: idle + iowait went back by 20.
  tree.write("proc/stat", "cpu  110 0 55 1010 10 0 0 0 0 0\n");
  const CpuTicks b = *port.readCpuTicks();
  EXPECT_EQ(b.idle, a.idle);
  EXPECT_EQ(b.user, 110u);
  EXPECT_EQ(b.system, 55u);
  // Once the counter is past its old value again, it moves on.
  tree.write("proc/stat", "cpu  120 0 60 1100 10 0 0 0 0 0\n");
  EXPECT_EQ(port.readCpuTicks()->idle, 1110u);
}

TEST(LinuxCpuTicksPort, ACounterThatWrapsPast32BitsStillMovesOn) {
  testing::TemporaryTree tree;
  LinuxCpuTicksPort port(std::make_shared<RootedFileSystem>(tree.root()));
  tree.write("proc/stat", "cpu  4294967290 0 0 100 0 0 0 0 0 0\n");
  const CpuTicks a = *port.readCpuTicks();
  tree.write("proc/stat", "cpu  4294967300 0 0 200 0 0 0 0 0 0\n");
  const CpuTicks b = *port.readCpuTicks();
  EXPECT_EQ(b.user, 4u);
  EXPECT_EQ(static_cast<std::uint32_t>(b.user - a.user), 10u);
}

TEST(LinuxCpuTicksPort, AFailedReadingDoesNotDisturbTheNextOne) {
  testing::TemporaryTree tree;
  LinuxCpuTicksPort port(std::make_shared<RootedFileSystem>(tree.root()));
  tree.write("proc/stat", "cpu  100 0 50 1000 0 0 0 0 0 0\n");
  port.readCpuTicks();
  tree.write("proc/stat", "garbage");
  EXPECT_EQ(port.readCpuTicks(), std::nullopt);
  tree.write("proc/stat", "cpu  200 0 60 1100 0 0 0 0 0 0\n");
  EXPECT_EQ(port.readCpuTicks(), (CpuTicks{200, 60, 1100, 0}));
}

}  // namespace
}  // namespace brimly
