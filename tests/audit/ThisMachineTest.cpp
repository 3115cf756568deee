// The Linux report on the machine the tests run on: its memory, disk and processor figures must
// agree with what this test reads from /proc/meminfo, statvfs("/") and /proc/stat by itself.
#include <sys/statvfs.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>
#include <thread>
#include <vector>

#include "audit/Audit.h"
#include "audit/system/LinuxKernelFigures.h"
#include "audit/system/QtLiveLoop.h"
#include "platform/linux/LinuxPlatformFactory.h"

namespace brimly {
namespace {

constexpr double kGiB = 1073741824.0;

std::map<std::string, double> readMeminfoKiB() {
  std::ifstream file("/proc/meminfo");
  std::map<std::string, double> fields;
  std::string name;
  double value = 0;
  std::string rest;
  for (std::string line; std::getline(file, line);) {
    std::istringstream parts(line);
    if (parts >> name >> value) fields[name.substr(0, name.size() - 1)] = value;
  }
  return fields;
}

struct Ticks {
  double busy = 0;
  double total = 0;
};

Ticks readProcStat() {
  std::ifstream file("/proc/stat");
  std::string label;
  double user = 0, nice = 0, system = 0, idle = 0, iowait = 0, irq = 0, softirq = 0, steal = 0;
  file >> label >> user >> nice >> system >> idle >> iowait >> irq >> softirq >> steal;
  const double busy = user + nice + system + irq + softirq + steal;
  return {busy, busy + idle + iowait};
}

// The number after `prefix` on the report line that starts with it.
double figureAfter(const std::string& report, const std::string& prefix) {
  const auto at = report.find(prefix);
  EXPECT_NE(at, std::string::npos) << "no line starting " << prefix << " in\n" << report;
  if (at == std::string::npos) return -1.0;
  return std::stod(report.substr(at + prefix.size()));
}

class ThisMachine : public ::testing::Test {
 protected:
  std::string section(void (*dump)(const Audit::Environment&, ReportWriter&)) {
    Audit::Environment environment;
    environment.flavour = ReportFlavour::gnuLinux;
    environment.platform = &platform_;
    environment.kernelFigures = &kernel_;
    environment.liveLoop = &loop_;
    std::ostringstream out;
    ReportWriter writer(out);
    dump(environment, writer);
    return out.str();
  }

 private:
  LinuxPlatformFactory platform_;
  LinuxKernelFigures kernel_;
  QtLiveLoop loop_;
};

TEST_F(ThisMachine, MemoryAgreesWithProcMeminfo) {
  const std::string report = section(Audit::dumpMemory);
  const auto meminfo = readMeminfoKiB();
  ASSERT_TRUE(meminfo.count("MemTotal") && meminfo.count("MemAvailable")) << report;
  const double total = meminfo.at("MemTotal") * 1024.0 / kGiB;
  const double used = (meminfo.at("MemTotal") - meminfo.at("MemAvailable")) * 1024.0 / kGiB;

  EXPECT_NEAR(figureAfter(report, "│  MemTotal:"), total, 0.0005) << report;
  EXPECT_NEAR(figureAfter(report, "│  Total physical:"), total, 0.0005) << report;
  // Memory moves while the test runs: used must agree within 1 % of the machine's memory.
  EXPECT_NEAR(figureAfter(report, "MemAvailable = "), used, 0.01 * total) << report;
  EXPECT_NEAR(figureAfter(report, "│  ► Used %: "), used / total * 100.0, 1.0) << report;
}

TEST_F(ThisMachine, DiskAgreesWithStatvfsAsDfCountsIt) {
  const std::string report = section(Audit::dumpDisk);
  struct statvfs info {};
  ASSERT_EQ(::statvfs("/", &info), 0);
  const double unit = static_cast<double>(info.f_frsize != 0 ? info.f_frsize : info.f_bsize);
  const double total = static_cast<double>(info.f_blocks) * unit / kGiB;
  const double available = static_cast<double>(info.f_bavail) * unit / kGiB;
  const double used = static_cast<double>(info.f_blocks - info.f_bfree) * unit / kGiB;
  ASSERT_GT(total, 0.0);

  const double tolerance = 0.001 * total;  // 0.1 %
  EXPECT_NEAR(figureAfter(report, "│  Total:"), total, tolerance) << report;
  EXPECT_NEAR(figureAfter(report, "│  Available (f_bavail):"), available, tolerance) << report;
  EXPECT_NEAR(figureAfter(report, "│  Used (f_blocks−f_bfree):"), used, tolerance) << report;
  EXPECT_EQ(figureAfter(report, "│  f_blocks:"), static_cast<double>(info.f_blocks)) << report;
  // df's Use%: the share of what users can have, rounded up. The file system may change between
  // the two readings, so one point either way is allowed.
  const double dfPercent = std::ceil(used / (used + available) * 100.0);
  EXPECT_NEAR(figureAfter(report, "rounded up: "), dfPercent, 1.0) << report;
}

// The processor share is a rate over a window, so the test makes it known: every processor is
// kept busy for the whole live section, and both the report and /proc/stat must see a busy
// machine.
TEST_F(ThisMachine, LiveProcessorShareAgreesWithProcStatUnderFullLoad) {
  std::atomic<bool> stop{false};
  std::vector<std::thread> spinners;
  const unsigned processors = std::max(1u, std::thread::hardware_concurrency());
  for (unsigned i = 0; i < processors; ++i) {
    spinners.emplace_back([&stop] {
      volatile unsigned long spin = 0;
      while (!stop.load(std::memory_order_relaxed))
        spin = spin + 1;
    });
  }
  const Ticks before = readProcStat();
  const std::string report = section(Audit::dumpLive);
  const Ticks after = readProcStat();
  stop = true;
  for (auto& spinner : spinners)
    spinner.join();

  const double kernelShare = (after.busy - before.busy) / (after.total - before.total) * 100.0;
  const double reportShare = figureAfter(report, "│  CPU:                 ");
  EXPECT_GE(kernelShare, 85.0) << "the machine was not busy; the comparison means nothing";
  EXPECT_NEAR(reportShare, kernelShare, 10.0) << report;
  EXPECT_NEAR(
      figureAfter(report, "│  RAM:                 "),
      [] {
        const auto meminfo = readMeminfoKiB();
        return (1.0 - meminfo.at("MemAvailable") / meminfo.at("MemTotal")) * 100.0;
      }(),
      1.5)
      << report;
}

}  // namespace
}  // namespace brimly
