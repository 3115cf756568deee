#include <gtest/gtest.h>

#include "AuditHarness.h"

namespace brimly {
namespace {

using testing::AuditHarness;
using testing::FakeMachine;

TEST(GpuSection, MacOSListsEachServiceWithItsStatisticsSorted) {
  AuditHarness harness(ReportFlavour::macOS);
  EXPECT_EQ(harness.section(Audit::dumpGPU),
            "\n"
            "┌─ GPU (IOAccelerator PerformanceStatistics)\n"
            "│  Service[0]: AGXAcceleratorG13X\n"
            "│    Device Utilization %: 23\n"
            "│    Renderer Utilization %: 20\n"
            "└─\n");
}

TEST(GpuSection, NoAcceleratorSaysSoInEachWording) {
  AuditHarness mac(ReportFlavour::macOS);
  mac.platform.change([](FakeMachine& m) { m.accelerators.reset(); });
  EXPECT_EQ(mac.section(Audit::dumpGPU),
            "\n┌─ GPU (IOAccelerator PerformanceStatistics)\n│  ❌ IOAccelerator not found\n└─\n");

  AuditHarness linuxHarness(ReportFlavour::gnuLinux);
  linuxHarness.platform.change(
      [](FakeMachine& m) { m.accelerators = std::vector<std::optional<PropertyDict>>{}; });
  EXPECT_EQ(linuxHarness.section(Audit::dumpGPU),
            "\n┌─ GPU (amdgpu gpu_busy_percent / NVML utilisation)\n"
            "│  ❌ no GPU busy figure (no amdgpu gpu_busy_percent, no NVML device)\n└─\n");
}

TEST(GpuSection, AnEmptyServiceListCountsAsNotFound) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change(
      [](FakeMachine& m) { m.accelerators = std::vector<std::optional<PropertyDict>>{}; });
  EXPECT_NE(harness.section(Audit::dumpGPU).find("│  ❌ IOAccelerator not found\n"),
            std::string::npos);
}

TEST(GpuSection, UnreadableServicesUseUpTheirNumber) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change([](FakeMachine& m) {
    m.accelerators = std::vector<std::optional<PropertyDict>>{
        std::nullopt, PropertyDict{{"IOClass", 7}},  // not a string
        PropertyDict{{"IOClass", "AGXAcceleratorG14G"},
                     {"PerformanceStatistics",
                      PropertyDict{{"GPU Busy", 12.5}, {"Alloc system memory", 1024}}}}};
  });
  EXPECT_EQ(harness.section(Audit::dumpGPU),
            "\n"
            "┌─ GPU (IOAccelerator PerformanceStatistics)\n"
            "│  Service[1]: ?\n"
            "│    (no PerformanceStatistics)\n"
            "│  Service[2]: AGXAcceleratorG14G\n"
            "│    Alloc system memory: 1024\n"
            "│    GPU Busy: 12.5\n"
            "└─\n");
}

TEST(GpuSection, LinuxListsItsCardsAndTheCompareCommand) {
  AuditHarness harness(ReportFlavour::gnuLinux);
  harness.platform.change([](FakeMachine& m) {
    m.accelerators = std::vector<std::optional<PropertyDict>>{
        PropertyDict{{"IOClass", "amdgpu"},
                     {"Card", "card1"},
                     {"PerformanceStatistics", PropertyDict{{"Device Utilization %", 41}}}}};
  });
  EXPECT_EQ(harness.section(Audit::dumpGPU),
            "\n"
            "┌─ GPU (amdgpu gpu_busy_percent / NVML utilisation)\n"
            "│  Service[0]: amdgpu\n"
            "│    Device Utilization %: 41\n"
            "│  Compare: cat /sys/class/drm/card*/device/gpu_busy_percent ; nvidia-smi -q -d "
            "UTILIZATION\n"
            "└─\n");
}

TEST(GpuSection, LinuxExplainsWhyThereIsNoFigure) {
  AuditHarness harness(ReportFlavour::gnuLinux);
  harness.platform.change(
      [](FakeMachine& m) { m.accelerators = std::vector<std::optional<PropertyDict>>{}; });
  harness.kernel.gpu = {"DRM cards: none under /sys/class/drm",
                        "NVML: not asked, no NVIDIA display controller"};
  EXPECT_EQ(harness.section(Audit::dumpGPU),
            "\n┌─ GPU (amdgpu gpu_busy_percent / NVML utilisation)\n"
            "│  ❌ no GPU busy figure (no amdgpu gpu_busy_percent, no NVML device)\n"
            "│  DRM cards: none under /sys/class/drm\n"
            "│  NVML: not asked, no NVIDIA display controller\n"
            "└─\n");
}

TEST(GpuSection, LinuxNotesFollowTheServicesToo) {
  AuditHarness harness(ReportFlavour::gnuLinux);
  harness.kernel.gpu = {"/sys/class/drm/card1 (amdgpu): gpu_busy_percent 23%"};
  const std::string text = harness.section(Audit::dumpGPU);
  EXPECT_NE(text.find("│    Renderer Utilization %: 20\n"
                      "│  /sys/class/drm/card1 (amdgpu): gpu_busy_percent 23%\n"
                      "│  Compare: "),
            std::string::npos)
      << text;
}

TEST(GpuSection, MacOSNeverPrintsKernelNotes) {
  AuditHarness harness(ReportFlavour::macOS);
  harness.platform.change([](FakeMachine& m) { m.accelerators.reset(); });
  harness.kernel.gpu = {"DRM cards: none under /sys/class/drm"};
  EXPECT_EQ(harness.section(Audit::dumpGPU).find("DRM"), std::string::npos);
}

}  // namespace
}  // namespace brimly
