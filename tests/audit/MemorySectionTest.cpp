#include <gtest/gtest.h>

#include "AuditHarness.h"

namespace brimly {
namespace {

using testing::AuditHarness;
using testing::FakeMachine;

// A Linux machine as its backend reports /proc/meminfo: one KiB per "page", used memory as the
// active count, nothing wired or compressed.
FakeMachine linuxMachine() {
  FakeMachine machine = FakeMachine::typicalLaptop();
  machine.memory.vm = VmStatistics{7'186'812, 0, 0, 7'078'428, 1'843'212};
  machine.memory.pageSize = 1024;
  machine.memory.physicalBytes = 16'108'452ull * 1024;
  return machine;
}

std::vector<std::pair<std::string, std::optional<std::uint64_t>>> referenceMeminfo() {
  return {{"MemTotal", 16'108'452}, {"MemAvailable", 8'921'640}, {"MemFree", 1'843'212},
          {"Buffers", 412'088},     {"Cached", 6'894'332},       {"SwapTotal", 8'388'604},
          {"SwapFree", 7'864'316}};
}

TEST(MemorySection, MacOSListsEachPageClassAndTheUsedSum) {
  AuditHarness harness(ReportFlavour::macOS);
  EXPECT_EQ(harness.section(Audit::dumpMemory),
            "\n"
            "┌─ MEMORY (host_statistics64 / HOST_VM_INFO64)\n"
            "│  Page size:          16384 bytes\n"
            "│  Active:               6.104 GB\n"
            "│  Wired:                2.289 GB\n"
            "│  Compressed:           0.763 GB\n"
            "│  Inactive:             4.578 GB\n"
            "│  Free:                 1.526 GB\n"
            "│  ► Brimly 'used' = active+wired+compressed = 9.155 GB\n"
            "│  Total physical:      16.000 GB\n"
            "│  ► Used %: 57.2%\n"
            "└─\n");
}

TEST(MemorySection, MacOSStatisticsFailureSaysFailed) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change([](FakeMachine& m) { m.memory.vm.reset(); });
  EXPECT_EQ(harness.section(Audit::dumpMemory),
            "\n┌─ MEMORY (host_statistics64 / HOST_VM_INFO64)\n│  ❌ failed\n└─\n");
}

TEST(MemorySection, MacOSIgnoresKernelFiguresEvenWhenGiven) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.kernel.setMeminfo(referenceMeminfo());
  EXPECT_EQ(harness.section(Audit::dumpMemory).find("MemTotal"), std::string::npos);
}

TEST(MemorySection, LinuxQuotesMeminfoBesideBrimlysFigure) {
  AuditHarness harness(ReportFlavour::gnuLinux, linuxMachine());
  harness.kernel.setMeminfo(referenceMeminfo());
  EXPECT_EQ(harness.section(Audit::dumpMemory),
            "\n"
            "┌─ MEMORY (/proc/meminfo)\n"
            "│  MemTotal:            15.362 GB\n"
            "│  MemAvailable:         8.508 GB\n"
            "│  MemFree:              1.758 GB\n"
            "│  Buffers:              0.393 GB\n"
            "│  Cached:               6.575 GB\n"
            "│  SwapTotal:            8.000 GB\n"
            "│  SwapFree:             7.500 GB\n"
            "│  ► Brimly 'used' = MemTotal − MemAvailable = 6.854 GB\n"
            "│  Total physical:      15.362 GB\n"
            "│  ► Used %: 44.6%\n"
            "│  Compare: free -b\n"
            "└─\n");
}

TEST(MemorySection, LinuxMarksAMissingMeminfoField) {
  AuditHarness harness(ReportFlavour::gnuLinux, linuxMachine());
  auto fields = referenceMeminfo();
  fields[1].second.reset();  // an old kernel without MemAvailable
  harness.kernel.setMeminfo(fields);
  EXPECT_NE(harness.section(Audit::dumpMemory).find("│  MemAvailable:       ❌ missing\n"),
            std::string::npos);
}

TEST(MemorySection, LinuxUnreadableMeminfoSaysSoOnce) {
  AuditHarness harness(ReportFlavour::gnuLinux, linuxMachine());
  harness.kernel.meminfoFigures.error = "Permission denied";
  harness.platform.change([](FakeMachine& m) { m.memory = MemoryReading{}; });
  EXPECT_EQ(harness.section(Audit::dumpMemory),
            "\n┌─ MEMORY (/proc/meminfo)\n"
            "│  ❌ /proc/meminfo could not be read (Permission denied)\n└─\n");
}

TEST(MemorySection, LinuxWithoutKernelFiguresPrintsBrimlysFiguresOnly) {
  AuditHarness harness(ReportFlavour::gnuLinux, linuxMachine());
  harness.withKernelFigures = false;
  EXPECT_EQ(harness.section(Audit::dumpMemory),
            "\n"
            "┌─ MEMORY (/proc/meminfo)\n"
            "│  ► Brimly 'used' = MemTotal − MemAvailable = 6.854 GB\n"
            "│  Total physical:      15.362 GB\n"
            "│  ► Used %: 44.6%\n"
            "│  Compare: free -b\n"
            "└─\n");
}

TEST(MemorySection, ZeroPhysicalMemoryPrintsTheDivisionAsItComes) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change([](FakeMachine& m) {
    m.memory.vm = VmStatistics{};
    m.memory.physicalBytes = 0;
  });
  EXPECT_NE(harness.section(Audit::dumpMemory).find("│  ► Used %: nan%\n"), std::string::npos);
}

}  // namespace
}  // namespace brimly
