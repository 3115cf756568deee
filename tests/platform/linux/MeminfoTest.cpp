#include "platform/linux/Meminfo.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

// A /proc/meminfo that `free` 4.0.2 read as: used 7186812 KiB, swap used 524288 KiB.
constexpr const char* kMeminfo =
    "MemTotal:       16108452 kB\n"
    "MemFree:         1843212 kB\n"
    "MemAvailable:    8921640 kB\n"
    "Buffers:          412088 kB\n"
    "Cached:          6894332 kB\n"
    "SwapCached:        51220 kB\n"
    "Active:          5120344 kB\n"
    "Inactive:        7203116 kB\n"
    "SwapTotal:       8388604 kB\n"
    "SwapFree:        7864316 kB\n"
    "Zswap:             98304 kB\n"
    "Shmem:           1132040 kB\n"
    "SReclaimable:     598212 kB\n"
    "VmallocTotal:   34359738367 kB\n"
    "HugePages_Total:       0\n"
    "Hugepagesize:       2048 kB\n";

std::uint64_t usedBytes(const MemoryReading& reading) {
  return reading.pageSize *
         (reading.vm->activePages + reading.vm->wiredPages + reading.vm->compressedPages);
}

TEST(Meminfo, ParsesNamedFieldsInFileOrder) {
  const Meminfo meminfo = parseMeminfo(kMeminfo);
  EXPECT_EQ(meminfo.find("MemTotal"), 16108452u);
  EXPECT_EQ(meminfo.find("HugePages_Total"), 0u);
  EXPECT_EQ(meminfo.find("VmallocTotal"), 34359738367u);
  EXPECT_EQ(meminfo.find("Missing"), std::nullopt);
  EXPECT_EQ(meminfo.fields.front().first, "MemTotal");
}

TEST(Meminfo, UsedIsWhatFreeCallsUsed) {
  const MemoryReading reading = memoryReadingFromMeminfo(parseMeminfo(kMeminfo));
  ASSERT_TRUE(reading.vm.has_value());
  EXPECT_EQ(reading.pageSize, 1024u);
  EXPECT_EQ(reading.vm->activePages, 7186812u);
  EXPECT_EQ(reading.vm->wiredPages, 0u);
  EXPECT_EQ(reading.vm->compressedPages, 0u);
  EXPECT_EQ(usedBytes(reading), 7359295488u);  // `free -b` used
  EXPECT_EQ(reading.physicalBytes, 16108452ull * 1024u);
  EXPECT_EQ(reading.vm->freePages, 1843212u);
  EXPECT_EQ(reading.vm->inactivePages, 16108452u - 7186812u - 1843212u);
}

TEST(Meminfo, SwapUsedIsTotalMinusFree) {
  const MemoryReading reading = memoryReadingFromMeminfo(parseMeminfo(kMeminfo));
  ASSERT_TRUE(reading.swap.has_value());
  EXPECT_EQ(reading.swap->totalBytes, 8388604ull * 1024u);
  EXPECT_EQ(reading.swap->usedBytes, 536870912u);
}

TEST(Meminfo, WithoutMemAvailableUsedFallsBackToMemFree) {
  const MemoryReading reading =
      memoryReadingFromMeminfo(parseMeminfo("MemTotal: 1000 kB\nMemFree: 300 kB\n"));
  ASSERT_TRUE(reading.vm.has_value());
  EXPECT_EQ(reading.vm->activePages, 700u);
  EXPECT_EQ(reading.vm->freePages, 300u);
  EXPECT_EQ(reading.vm->inactivePages, 0u);
}

TEST(Meminfo, AZeroOrOversizedMemAvailableFallsBackToMemFree) {
  EXPECT_EQ(memoryReadingFromMeminfo(
                parseMeminfo("MemTotal: 1000 kB\nMemFree: 300 kB\nMemAvailable: 0 kB\n"))
                .vm->activePages,
            700u);
  // A container without LXCFS can show more available than total.
  EXPECT_EQ(memoryReadingFromMeminfo(
                parseMeminfo("MemTotal: 1000 kB\nMemFree: 300 kB\nMemAvailable: 5000 kB\n"))
                .vm->activePages,
            700u);
}

TEST(Meminfo, MissingTotalOrBothFreeFiguresLeaveTheStatisticsOut) {
  EXPECT_EQ(memoryReadingFromMeminfo(parseMeminfo("MemFree: 300 kB\n")).vm, std::nullopt);
  EXPECT_EQ(memoryReadingFromMeminfo(parseMeminfo("MemFree: 300 kB\n")).physicalBytes, 0u);
  EXPECT_EQ(memoryReadingFromMeminfo(parseMeminfo("MemTotal: 0 kB\nMemFree: 0 kB\n")).vm,
            std::nullopt);
  const MemoryReading onlyTotal = memoryReadingFromMeminfo(parseMeminfo("MemTotal: 1000 kB\n"));
  EXPECT_EQ(onlyTotal.vm, std::nullopt);
  EXPECT_EQ(onlyTotal.physicalBytes, 1024000u);
}

TEST(Meminfo, SwapNeedsBothFieldsAndNeverGoesNegative) {
  EXPECT_EQ(memoryReadingFromMeminfo(parseMeminfo("SwapTotal: 10 kB\n")).swap, std::nullopt);
  const MemoryReading noSwap =
      memoryReadingFromMeminfo(parseMeminfo("SwapTotal: 0 kB\nSwapFree: 0 kB\n"));
  EXPECT_EQ(noSwap.swap, (SwapUsage{0, 0}));
  const MemoryReading odd =
      memoryReadingFromMeminfo(parseMeminfo("SwapTotal: 10 kB\nSwapFree: 20 kB\n"));
  EXPECT_EQ(odd.swap, (SwapUsage{10240, 0}));
}

TEST(Meminfo, GarbageLinesAreSkipped) {
  const Meminfo meminfo = parseMeminfo(
      "garbage\n"
      ": 12 kB\n"
      "MemTotal 1000 kB\n"    // no colon
      "Mem Total: 1000 kB\n"  // space in the name
      "MemTotal: twelve kB\n"
      "MemTotal: 12 MB\n"  // unknown unit
      "MemTotal: -5 kB\n"
      "MemTotal: 99999999999999999999999 kB\n"
      "MemFree: 77 kB\r\n"
      "Cached: 5");  // truncated last line, no unit
  EXPECT_EQ(meminfo.find("MemTotal"), std::nullopt);
  EXPECT_EQ(meminfo.find("MemFree"), 77u);
  EXPECT_EQ(meminfo.find("Cached"), 5u);
  EXPECT_EQ(meminfo.fields.size(), 2u);
}

TEST(Meminfo, ARepeatedFieldKeepsItsLastValue) {
  const Meminfo meminfo = parseMeminfo("MemFree: 1 kB\nMemFree: 2 kB\n");
  EXPECT_EQ(meminfo.find("MemFree"), 2u);
  EXPECT_EQ(meminfo.fields.size(), 1u);
}

TEST(Meminfo, FiguresTooLargeForBytesCountAsMissing) {
  const MemoryReading reading = memoryReadingFromMeminfo(
      parseMeminfo("MemTotal: 18446744073709551615 kB\nMemFree: 1 kB\n"
                   "SwapTotal: 18446744073709551615 kB\nSwapFree: 0 kB\n"));
  EXPECT_EQ(reading.vm, std::nullopt);
  EXPECT_EQ(reading.physicalBytes, 0u);
  EXPECT_EQ(reading.swap, std::nullopt);
}

TEST(Meminfo, EmptyTextGivesAnEmptyReading) {
  const MemoryReading reading = memoryReadingFromMeminfo(parseMeminfo(""));
  EXPECT_EQ(reading.vm, std::nullopt);
  EXPECT_EQ(reading.swap, std::nullopt);
  EXPECT_EQ(reading.physicalBytes, 0u);
}

TEST(Meminfo, TheReadingsFieldsAloneGiveTheSameReading) {
  const Meminfo only = parseMeminfo(kMeminfo, kMemoryReadingFields);
  ASSERT_EQ(only.fields.size(), 5u);
  EXPECT_EQ(only.find("Cached"), std::nullopt);
  const MemoryReading fromOnly = memoryReadingFromMeminfo(only);
  const MemoryReading fromAll = memoryReadingFromMeminfo(parseMeminfo(kMeminfo));
  EXPECT_EQ(fromOnly.vm, fromAll.vm);
  EXPECT_EQ(fromOnly.swap, fromAll.swap);
  EXPECT_EQ(fromOnly.physicalBytes, fromAll.physicalBytes);
  EXPECT_EQ(fromOnly.pageSize, fromAll.pageSize);
}

TEST(Meminfo, NamedFieldsAreReadUntilEachHasAValue) {
  constexpr std::string_view names[] = {"MemTotal", "MemFree"};
  const Meminfo meminfo = parseMeminfo(
      "MemTotal: twelve kB\nMemFree: 300 kB\nCached: 5 kB\nMemTotal: 1000 kB\nMemFree: 1 kB\n",
      names);
  EXPECT_EQ(meminfo.find("MemTotal"), 1000u);  // the garbage line gave none
  EXPECT_EQ(meminfo.find("MemFree"), 300u);    // the kernel never repeats a name
  EXPECT_EQ(meminfo.find("Cached"), std::nullopt);
}

}  // namespace
}  // namespace brimly
