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
  // A large root reserve: 157 GB free that no user can fill. df -B1 / says Used 17999851520,
  // Avail 84745428992, Use% 18%.
  AuditHarness harness(ReportFlavour::gnuLinux);
  harness.kernel.rootFs = RootFilesystemFigures{4096, 66'053'021, 61'658'526, 20'689'802, 4096};
  harness.platform.change([](FakeMachine& m) {
    m.disk = DiskCapacities{20'689'802ll * 4096, 66'053'021ll * 4096, 4'394'495ll * 4096};
  });
  EXPECT_EQ(harness.section(Audit::dumpDisk),
            "\n"
            "┌─ DISK (statvfs(\"/\"))\n"
            "│  f_frsize:               4096 bytes\n"
            "│  f_bsize:                4096 bytes\n"
            "│  f_blocks:               66053021 × f_frsize = 251.97 GB\n"
            "│  f_bfree:                61658526 × f_frsize = 235.21 GB\n"
            "│  f_bavail:               20689802 × f_frsize = 78.93 GB\n"
            "│  Total:                    251.97 GB\n"
            "│  Used (f_blocks−f_bfree):   16.76 GB\n"
            "│  Available (f_bavail):      78.93 GB\n"
            "│  Held back for root:       156.28 GB\n"
            "│  ► Use% = Used ÷ (Used + Avail) = 17.52%, rounded up: 18%\n"
            "│  Compare: df -B1 /\n"
            "└─\n");
}

TEST(DiskSection, LinuxWithoutAReservedAreaHoldsNothingBack) {
  AuditHarness harness(ReportFlavour::gnuLinux);
  harness.withKernelFigures = false;
  harness.platform.change([](FakeMachine& m) {
    m.disk = DiskCapacities{250ll << 30, 1000ll << 30, 750ll << 30};
  });
  const std::string text = harness.section(Audit::dumpDisk);
  EXPECT_NE(text.find("│  Held back for root:         0.00 GB\n"), std::string::npos) << text;
  EXPECT_NE(text.find("│  ► Use% = Used ÷ (Used + Avail) = 75.00%, rounded up: 75%\n"),
            std::string::npos)
      << text;
}

TEST(DiskSection, LinuxSaysWhenStatvfsFails) {
  AuditHarness harness(ReportFlavour::gnuLinux);
  harness.kernel.rootFs.reset();
  EXPECT_NE(harness.section(Audit::dumpDisk).find("│  ❌ statvfs(\"/\") failed\n"),
            std::string::npos);
}

}  // namespace
}  // namespace brimly
