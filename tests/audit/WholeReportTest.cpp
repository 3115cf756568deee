#include <gtest/gtest.h>

#include <clocale>
#include <fstream>
#include <locale>
#include <sstream>

#include "AuditMachines.h"

namespace brimly {
namespace {

using testing::AuditHarness;
using testing::FakeMachine;

std::string expected(const std::string& name) {
  std::ifstream file(std::string(BRIMLY_AUDIT_EXPECTED_DIR) + "/" + name, std::ios::binary);
  EXPECT_TRUE(file.good()) << "missing expected report " << name;
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

// Writes the report that a test produced into the build tree, so that a difference can be read
// with diff(1) against the expected file.
void keep(const std::string& name, const std::string& text) {
  std::ofstream(std::string(BRIMLY_AUDIT_ACTUAL_DIR) + "/" + name + ".actual", std::ios::binary)
      << text;
}

std::string typicalReport(ReportFlavour flavour) {
  AuditHarness harness(flavour, flavour == ReportFlavour::macOS ? FakeMachine::typicalLaptop()
                                                                : testing::typicalLinuxLaptop());
  testing::setTypicalLinuxKernelFigures(harness.kernel);
  testing::drawPowerDuringWait(harness);
  testing::loadBetweenLiveCycles(harness);
  int status = -1;
  std::string text = harness.report(&status);
  EXPECT_EQ(status, 0);
  return text;
}

// A desktop whose every optional reading is missing: mains power only, no battery entry, no
// accelerator, no sensor, no energy counters.
std::string bareReport(ReportFlavour flavour) {
  FakeMachine machine = FakeMachine::bareMachine();
  machine.powerSources = std::vector<std::optional<PropertyDict>>{
      PropertyDict{{"Name", "AC"}, {"Power Source State", "AC Power"}, {"Is Charging", false}}};
  machine.sensorNaming =
      flavour == ReportFlavour::macOS ? SensorNaming::appleSilicon : SensorNaming::linuxHwmon;
  AuditHarness harness(flavour, machine);
  harness.kernel.gpu = {"DRM cards: none under /sys/class/drm",
                        "NVML: not asked, no NVIDIA display controller"};
  harness.kernel.energyAccess = EnergyCounterAccess::notPermitted;
  harness.kernel.energy = {
      "/sys/class/powercap/intel-rapl:0 (package-0): energy_uj unreadable (Permission denied)"};
  int status = -1;
  std::string text = harness.report(&status);
  EXPECT_EQ(status, 0);
  return text;
}

TEST(WholeReport, TypicalMacBookMatchesTheExpectedText) {
  const std::string text = typicalReport(ReportFlavour::macOS);
  keep("typical-laptop-macos", text);
  EXPECT_EQ(text, expected("typical-laptop-macos.txt"));
}

TEST(WholeReport, TypicalLinuxLaptopMatchesTheExpectedText) {
  const std::string text = typicalReport(ReportFlavour::gnuLinux);
  keep("typical-laptop-linux", text);
  EXPECT_EQ(text, expected("typical-laptop-linux.txt"));
}

TEST(WholeReport, BareMacMatchesTheExpectedText) {
  const std::string text = bareReport(ReportFlavour::macOS);
  keep("bare-desktop-macos", text);
  EXPECT_EQ(text, expected("bare-desktop-macos.txt"));
}

TEST(WholeReport, BareLinuxDesktopMatchesTheExpectedText) {
  const std::string text = bareReport(ReportFlavour::gnuLinux);
  keep("bare-desktop-linux", text);
  EXPECT_EQ(text, expected("bare-desktop-linux.txt"));
}

TEST(WholeReport, SectionsAndOverviewTitlesComeInTheirOrder) {
  for (const auto flavour : testing::bothFlavours()) {
    const std::string text = typicalReport(flavour);
    const ReportWording& wording = reportWording(flavour);
    std::size_t at = 0;
    for (const std::string& marker :
         {std::string("Brimly diagnostic dump — all values read live from system APIs.\n"),
          std::string("Date: 2026-11-22 09:41:07 +0000\n\n"), wording.memoryTitle + "\n\n┌─ MEMORY",
          wording.diskTitle + "\n\n┌─ DISK", wording.batteryTitle + "\n\n┌─ BATTERY",
          wording.gpuTitle + "\n\n┌─ GPU", wording.temperaturesTitle + "\n┌─ TEMPERATURE SENSORS",
          wording.energyTitle + "\n\n┌─ ", std::string("\n\nCompare against:\n"),
          std::string("\n\n→ Live SystemMonitor (2 sample cycles)\n┌─ Brimly's LIVE reading")}) {
      const auto found = text.find(marker, at);
      ASSERT_NE(found, std::string::npos) << "missing or out of order: " << marker;
      at = found + marker.size();
    }
    const std::string end = "\n└─\n";
    ASSERT_GE(text.size(), end.size());
    EXPECT_EQ(text.substr(text.size() - end.size()), end);
  }
}

TEST(WholeReport, EveryLineInsideASectionStartsWithTheBar) {
  for (const auto flavour : testing::bothFlavours()) {
    std::istringstream lines(typicalReport(flavour));
    bool inside = false;
    int sections = 0;
    for (std::string line; std::getline(lines, line);) {
      if (line.rfind("┌─ ", 0) == 0) {
        EXPECT_FALSE(inside) << line;
        inside = true;
        ++sections;
      } else if (line == "└─") {
        EXPECT_TRUE(inside);
        inside = false;
      } else if (inside) {
        EXPECT_EQ(line.rfind("│  ", 0), 0u) << line;
      }
    }
    EXPECT_FALSE(inside);
    EXPECT_EQ(sections, 8);  // memory, disk, two battery boxes, GPU, sensors, energy, live
  }
}

// Both the C library and the C++ library switched to German number formats.
class WholeReportUnderGermanLocale : public ::testing::Test {
 protected:
  class GermanNumbers : public std::numpunct<char> {
   protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };

  void SetUp() override {
    previousCpp_ = std::locale::global(std::locale(std::locale::classic(), new GermanNumbers));
    const char* current = std::setlocale(LC_ALL, nullptr);
    previousC_ = current ? current : "C";
    germanC_ = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
  }
  void TearDown() override {
    std::setlocale(LC_ALL, previousC_.c_str());
    std::locale::global(previousCpp_);
  }

  bool germanC_ = false;

 private:
  std::locale previousCpp_;
  std::string previousC_;
};

TEST_F(WholeReportUnderGermanLocale, PrintsTheSameTextAsUnderTheCLocale) {
  if (!germanC_) std::cerr << "note: de_DE.UTF-8 is not installed; only the C++ locale is German\n";
  EXPECT_EQ(typicalReport(ReportFlavour::macOS), expected("typical-laptop-macos.txt"));
  EXPECT_EQ(typicalReport(ReportFlavour::gnuLinux), expected("typical-laptop-linux.txt"));
}

}  // namespace
}  // namespace brimly
