#include "platform/linux/ProcStat.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

constexpr const char* kSnapshotA =
    "cpu  46000 180 15500 1205000 5300 540 560 0 0 0\n"
    "cpu0 12000 50 4000 300000 1500 300 200 0 0 0\n"
    "cpu1 11000 40 3800 302000 1200 100 150 0 0 0\n"
    "intr 2516823 9 0 0 0 0 0 0 0 1 0 0 0 0\n"
    "ctxt 4720315\n";
constexpr const char* kSnapshotB =
    "cpu  46105 185 15535 1205249 5303 541 562 0 0 0\n"
    "cpu0 12030 50 4010 300057 1501 301 201 0 0 0\n";

double busyFraction(const CpuTicks& a, const CpuTicks& b) {
  const auto delta = [](std::uint32_t later, std::uint32_t earlier) {
    return static_cast<double>(static_cast<std::uint32_t>(later - earlier));
  };
  const double busy = delta(b.user, a.user) + delta(b.system, a.system) + delta(b.nice, a.nice);
  return busy / (busy + delta(b.idle, a.idle));
}

TEST(ProcStat, ReadsTheAggregateLineNotAPerProcessorOne) {
  const auto cpu = parseProcStatCpu(kSnapshotA);
  ASSERT_TRUE(cpu.has_value());
  EXPECT_EQ(cpu->user, 46000u);
  EXPECT_EQ(cpu->nice, 180u);
  EXPECT_EQ(cpu->system, 15500u);
  EXPECT_EQ(cpu->idle, 1205000u);
  EXPECT_EQ(cpu->iowait, 5300u);
  EXPECT_EQ(cpu->irq, 540u);
  EXPECT_EQ(cpu->softirq, 560u);
  EXPECT_EQ(cpu->columns, 10);
}

TEST(ProcStat, FoldsIowaitIntoIdleAndInterruptsAndStealIntoSystem) {
  ProcStatCpu cpu;
  cpu.user = 100;
  cpu.nice = 7;
  cpu.system = 20;
  cpu.idle = 1000;
  cpu.iowait = 30;
  cpu.irq = 3;
  cpu.softirq = 4;
  cpu.steal = 5;
  cpu.guest = 50;     // already inside user
  cpu.guestNice = 2;  // already inside nice
  EXPECT_EQ(cpuTicksFromProcStat(cpu), (CpuTicks{100, 32, 1030, 7}));
}

TEST(ProcStat, TwoSnapshotsGiveTheFractionHtopShows) {
  const CpuTicks a = cpuTicksFromProcStat(*parseProcStatCpu(kSnapshotA));
  const CpuTicks b = cpuTicksFromProcStat(*parseProcStatCpu(kSnapshotB));
  EXPECT_DOUBLE_EQ(busyFraction(a, b), 0.37);
}

TEST(ProcStat, CountersAreCutTo32BitsSoWrappingSubtractionStillWorks) {
  ProcStatCpu before;
  before.user = 0xFFFFFFF0ull;
  before.idle = (1ull << 33) + 0xFFFFFF00ull;
  ProcStatCpu after = before;
  after.user += 0x20;  // crosses 2^32
  after.idle += 0x200;
  const CpuTicks a = cpuTicksFromProcStat(before);
  const CpuTicks b = cpuTicksFromProcStat(after);
  EXPECT_EQ(a.user, 0xFFFFFFF0u);
  EXPECT_EQ(b.user, 0x10u);
  EXPECT_EQ(static_cast<std::uint32_t>(b.user - a.user), 0x20u);
  EXPECT_EQ(static_cast<std::uint32_t>(b.idle - a.idle), 0x200u);
}

TEST(ProcStat, SumsThatOverflow64BitsStillWrapConsistently) {
  ProcStatCpu cpu;
  cpu.system = UINT64_MAX;
  cpu.irq = 2;
  EXPECT_EQ(cpuTicksFromProcStat(cpu).system, 1u);
}

TEST(ProcStat, OlderKernelsWithFourColumnsReadTheRestAsZero) {
  const auto cpu = parseProcStatCpu("cpu  10 20 30 40\n");
  ASSERT_TRUE(cpu.has_value());
  EXPECT_EQ(cpu->columns, 4);
  EXPECT_EQ(cpu->iowait, 0u);
  EXPECT_EQ(cpuTicksFromProcStat(*cpu), (CpuTicks{10, 30, 40, 20}));
}

TEST(ProcStat, ColumnsBeyondTheTenKnownAreIgnored) {
  const auto cpu = parseProcStatCpu("cpu  1 2 3 4 5 6 7 8 9 10 11 12\n");
  ASSERT_TRUE(cpu.has_value());
  EXPECT_EQ(cpu->guestNice, 10u);
}

TEST(ProcStat, TheAggregateLineNeedNotComeFirstOrEndWithANewline) {
  const auto cpu = parseProcStatCpu("intr 1 2\ncpu\t5 6 7 8");
  ASSERT_TRUE(cpu.has_value());
  EXPECT_EQ(cpu->user, 5u);
  EXPECT_EQ(cpu->idle, 8u);
}

TEST(ProcStat, MalformedContentGivesNothing) {
  EXPECT_EQ(parseProcStatCpu(""), std::nullopt);
  EXPECT_EQ(parseProcStatCpu("\n\n"), std::nullopt);
  EXPECT_EQ(parseProcStatCpu("cpu  12 3\n"), std::nullopt);     // truncated
  EXPECT_EQ(parseProcStatCpu("cpu0 1 2 3 4\n"), std::nullopt);  // no aggregate line
  EXPECT_EQ(parseProcStatCpu("cpu  1 2 x 4\n"), std::nullopt);  // garbage column
  EXPECT_EQ(parseProcStatCpu("cpu  1 2 3 4x\n"), std::nullopt);
  EXPECT_EQ(parseProcStatCpu("cpu  -1 2 3 4\n"), std::nullopt);                       // negative
  EXPECT_EQ(parseProcStatCpu("cpu  1 2 3 99999999999999999999999\n"), std::nullopt);  // > 64 bits
  EXPECT_EQ(parseProcStatCpu("cpu\n"), std::nullopt);
  EXPECT_EQ(parseProcStatCpu("cpux 1 2 3 4\n"), std::nullopt);
}

TEST(ProcStat, HugeValuesThatFitIn64BitsAreRead) {
  const auto cpu = parseProcStatCpu("cpu  18446744073709551615 0 0 0\n");
  ASSERT_TRUE(cpu.has_value());
  EXPECT_EQ(cpu->user, UINT64_MAX);
  EXPECT_EQ(cpuTicksFromProcStat(*cpu).user, UINT32_MAX);
}

}  // namespace
}  // namespace brimly
