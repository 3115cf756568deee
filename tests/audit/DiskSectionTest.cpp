#include <gtest/gtest.h>

#include "AuditHarness.h"

namespace brimly {
namespace {

using testing::AuditHarness;
using testing::FakeMachine;

TEST(DiskSection, MacOSShowsTotalAvailableAndUsed) {
  AuditHarness harness(ReportFlavour::macOS);
  EXPECT_EQ(harness.section(Audit::dumpDisk),
            "\n"
            "┌─ DISK (URLResourceValues / volumeAvailableCapacityForImportantUsage)\n"
            "│  Total:                    460.43 GB\n"
            "│  Available (important):    279.40 GB\n"
            "│  ► Used = Total − Avail = 181.03 GB (39.3%)\n"
            "│  Compare: df -h /\n"
            "└─\n");
}

TEST(DiskSection, AFailedQueryCountsAsZeroAndTheShareIsNan) {
  for (const auto flavour : testing::bothFlavours()) {
    AuditHarness harness(flavour);
    harness.withKernelFigures = false;
    harness.platform.change([](FakeMachine& m) { m.disk.reset(); });
    const std::string text = harness.section(Audit::dumpDisk);
    EXPECT_NE(text.find("│  Total:                      0.00 GB\n"), std::string::npos) << text;
    EXPECT_NE(text.find("│  ► Used = Total − Avail = 0.00 GB (nan%)\n"), std::string::npos) << text;
  }
}

TEST(DiskSection, AMissingFigureCountsAsZero) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change([](FakeMachine& m) { m.disk = DiskCapacities{std::nullopt, 1 << 30}; });
  const std::string text = harness.section(Audit::dumpDisk);
  EXPECT_NE(text.find("│  Available (important):      0.00 GB\n"), std::string::npos) << text;
  EXPECT_NE(text.find("│  ► Used = Total − Avail = 1.00 GB (100.0%)\n"), std::string::npos) << text;
}

TEST(DiskSection, LinuxQuotesStatvfsBesideBrimlysFigures) {
  AuditHarness harness(ReportFlavour::gnuLinux);
  harness.kernel.rootFs = RootFilesystemFigures{4096, 66'053'021, 61'658'526, 20'689'802};
  harness.platform.change([](FakeMachine& m) {
    m.disk = DiskCapacities{20'689'802ll * 4096, 66'053'021ll * 4096};
  });
  EXPECT_EQ(harness.section(Audit::dumpDisk),
            "\n"
            "┌─ DISK (statvfs(\"/\"))\n"
            "│  f_frsize:               4096 bytes\n"
            "│  f_blocks × f_frsize:      251.97 GB\n"
            "│  f_bfree × f_frsize:       235.21 GB\n"
            "│  f_bavail × f_frsize:       78.93 GB\n"
            "│  Total:                    251.97 GB\n"
            "│  Available (f_bavail):      78.93 GB\n"
            "│  ► Used = Total − Avail = 173.05 GB (68.7%)\n"
            "│  Compare: df -B1 /\n"
            "└─\n");
}

TEST(DiskSection, LinuxSaysWhenStatvfsFails) {
  AuditHarness harness(ReportFlavour::gnuLinux);
  harness.kernel.rootFs.reset();
  EXPECT_NE(harness.section(Audit::dumpDisk).find("│  ❌ statvfs(\"/\") failed\n"),
            std::string::npos);
}

}  // namespace
}  // namespace brimly
