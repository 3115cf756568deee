#include "platform/linux/LinuxAcceleratorPort.h"

#include <gtest/gtest.h>

#include "LinuxTestSupport.h"
#include "TemporaryTree.h"
#include "platform/linux/RootedFileSystem.h"

namespace brimly {
namespace {

using testing::FakeNvml;
using testing::FakeNvmlState;
using testing::recordingFixture;
using Services = std::vector<std::optional<PropertyDict>>;

std::shared_ptr<FakeNvmlState> rtx4070() {
  auto state = std::make_shared<FakeNvmlState>();
  state->devices.push_back({0, true, "NVIDIA GeForce RTX 4070", 37u, 12u});
  return state;
}

Services servicesOf(std::shared_ptr<const FileSystemView> files,
                    std::shared_ptr<FakeNvmlState> nvml = std::make_shared<FakeNvmlState>()) {
  LinuxAcceleratorPort port(std::move(files), std::make_unique<FakeNvml>(nvml));
  auto services = port.readAcceleratorServices();
  EXPECT_TRUE(services.has_value());
  return services.value_or(Services{});
}

TEST(LinuxAcceleratorPort, AnIntelGpuOffersNoLoadFigure) {
  const auto nvml = std::make_shared<FakeNvmlState>();
  EXPECT_TRUE(servicesOf(recordingFixture("intel-laptop-discharging"), nvml).empty());
  EXPECT_EQ(nvml->opens, 0);
}

TEST(LinuxAcceleratorPort, AnAmdGpuGivesItsBusyPercent) {
  const Services services = servicesOf(recordingFixture("amd-laptop-charging"));
  ASSERT_EQ(services.size(), 1u);
  const PropertyDict expected{
      {"IOClass", "amdgpu"},
      {"Card", "card0"},
      {"Vendor", "0x1002"},
      {"Runtime Status", "active"},
      {"PerformanceStatistics", PropertyDict{{"Device Utilization %", std::int64_t{23}}}}};
  EXPECT_EQ(services[0], expected);
}

TEST(LinuxAcceleratorPort, AnNvidiaGpuIsReadThroughNvmlAndKeptOpen) {
  const auto nvml = rtx4070();
  {
    LinuxAcceleratorPort port(recordingFixture("nvidia-desktop"), std::make_unique<FakeNvml>(nvml));
    const auto services = port.readAcceleratorServices();
    ASSERT_TRUE(services.has_value());
    ASSERT_EQ(services->size(), 1u);
    const PropertyDict expected{
        {"IOClass", "nvidia"},
        {"NVML Index", std::int64_t{0}},
        {"Name", "NVIDIA GeForce RTX 4070"},
        {"PerformanceStatistics", PropertyDict{{"Device Utilization %", std::int64_t{37}},
                                               {"Memory Utilization %", std::int64_t{12}}}}};
    EXPECT_EQ((*services)[0], expected);
    port.readAcceleratorServices();
    // Runtime control "on": the card never sleeps, so the library stays initialised.
    EXPECT_EQ(nvml->opens, 1);
    EXPECT_EQ(nvml->closes, 0);
  }
  EXPECT_EQ(nvml->closes, 1);  // shut down with the reader
}

TEST(LinuxAcceleratorPort, AnUnreachableNvmlDeviceIsLeftOut) {
  auto nvml = std::make_shared<FakeNvmlState>();
  nvml->devices.push_back({0, false, std::nullopt, std::nullopt, std::nullopt});
  EXPECT_TRUE(servicesOf(recordingFixture("nvidia-desktop"), nvml).empty());
}

TEST(LinuxAcceleratorPort, ADeviceWithoutUtilisationIsListedWithoutStatistics) {
  auto nvml = std::make_shared<FakeNvmlState>();
  nvml->devices.push_back({0, true, "A100-SXM4-40GB MIG", std::nullopt, std::nullopt});
  const Services services = servicesOf(recordingFixture("nvidia-desktop"), nvml);
  ASSERT_EQ(services.size(), 1u);
  EXPECT_EQ(services[0]->find("PerformanceStatistics"), nullptr);
}

TEST(LinuxAcceleratorPort, WhenNvmlCannotOpenTheCardIsListedWithoutFiguresAndNotRetried) {
  auto nvml = std::make_shared<FakeNvmlState>();
  nvml->openSucceeds = false;
  LinuxAcceleratorPort port(recordingFixture("nvidia-desktop"), std::make_unique<FakeNvml>(nvml));
  const auto services = port.readAcceleratorServices();
  ASSERT_EQ(services->size(), 1u);  // the audio function of the card is not a display device
  EXPECT_EQ((*services)[0], (PropertyDict{{"IOClass", "nvidia"},
                                          {"PCI Slot", "0000:01:00.0"},
                                          {"Runtime Status", "active"}}));
  port.readAcceleratorServices();
  EXPECT_EQ(nvml->opens, 1);
}

TEST(LinuxAcceleratorPort, WithoutAnNvmlLibraryNothingIsListedForNvidia) {
  LinuxAcceleratorPort port(recordingFixture("nvidia-desktop"), nullptr);
  const auto services = port.readAcceleratorServices();
  ASSERT_TRUE(services.has_value());
  EXPECT_TRUE(services->empty());
}

TEST(LinuxAcceleratorPort, AVirtualMachineHasNoGpu) {
  const auto nvml = rtx4070();
  EXPECT_TRUE(servicesOf(recordingFixture("vm-bare"), nvml).empty());
  EXPECT_EQ(nvml->opens, 0);
}

TEST(LinuxAcceleratorPort, ASuspendedAmdGpuIsListedButNeverRead) {
  const auto files = recordingFixture("suspended-dgpu");
  const Services services = servicesOf(files);
  ASSERT_EQ(services.size(), 1u);
  EXPECT_EQ(services[0], (PropertyDict{{"IOClass", "amdgpu"},
                                       {"Card", "card1"},
                                       {"Vendor", "0x1002"},
                                       {"Runtime Status", "suspended"}}));
  EXPECT_TRUE(files->readsEndingIn("gpu_busy_percent").empty());
}

TEST(LinuxAcceleratorPort, BrokenContentGivesAServiceWithoutFigures) {
  const auto nvml = rtx4070();
  const Services services = servicesOf(recordingFixture("broken"), nvml);
  ASSERT_EQ(services.size(), 1u);  // card1-HDMI-A-1 and cardX are not cards
  EXPECT_EQ(services[0], (PropertyDict{{"IOClass", "amdgpu"}, {"Card", "card0"}}));
  EXPECT_EQ(nvml->opens, 0);  // a device whose class is garbage is not a display controller
}

class SleepingNvidiaLaptop : public ::testing::Test {
 protected:
  void SetUp() override {
    tree.write("sys/bus/pci/devices/0000:00:02.0/vendor", "0x8086\n");
    tree.write("sys/bus/pci/devices/0000:00:02.0/class", "0x030000\n");
    tree.write("sys/bus/pci/devices/0000:01:00.0/vendor", "0x10de\n");
    tree.write("sys/bus/pci/devices/0000:01:00.0/class", "0x030200\n");
    tree.write("sys/bus/pci/devices/0000:01:00.0/power/control", "auto\n");
    setStatus("suspended");
  }
  void setStatus(std::string_view status) {
    tree.write("sys/bus/pci/devices/0000:01:00.0/power/runtime_status", std::string(status) + "\n");
  }

  testing::TemporaryTree tree;
  std::shared_ptr<FakeNvmlState> nvml = rtx4070();
  LinuxAcceleratorPort port{std::make_shared<RootedFileSystem>(tree.root()),
                            std::make_unique<FakeNvml>(nvml)};
};

TEST_F(SleepingNvidiaLaptop, NvmlIsNotInitialisedWhileTheGpuSleeps) {
  const auto services = port.readAcceleratorServices();
  ASSERT_EQ(services->size(), 1u);
  EXPECT_EQ((*services)[0], (PropertyDict{{"IOClass", "nvidia"},
                                          {"PCI Slot", "0000:01:00.0"},
                                          {"Runtime Status", "suspended"}}));
  EXPECT_EQ(nvml->opens, 0);
  EXPECT_EQ(nvml->deviceReads, 0);
}

TEST_F(SleepingNvidiaLaptop, AnAwakeGpuIsReadAndReleasedSoItMaySleepAgain) {
  setStatus("active");
  const auto services = port.readAcceleratorServices();
  ASSERT_EQ(services->size(), 1u);
  EXPECT_EQ((*services)[0]->dict("PerformanceStatistics")->integer("Device Utilization %"), 37);
  EXPECT_EQ(nvml->opens, 1);
  EXPECT_EQ(nvml->closes, 1);
  EXPECT_FALSE(nvml->open);

  setStatus("suspended");
  port.readAcceleratorServices();
  EXPECT_EQ(nvml->opens, 1);
}

TEST_F(SleepingNvidiaLaptop, AGpuOnItsWayToSleepIsLeftAlone) {
  setStatus("suspending");
  port.readAcceleratorServices();
  EXPECT_EQ(nvml->opens, 0);
}

TEST_F(SleepingNvidiaLaptop, AWakingGpuIsNoticedAtTheNextReading) {
  port.readAcceleratorServices();
  setStatus("active");
  const auto services = port.readAcceleratorServices();
  EXPECT_EQ((*services)[0]->dict("PerformanceStatistics")->integer("Device Utilization %"), 37);
}

class GpuInventory : public SleepingNvidiaLaptop {
 protected:
  int vendorReads() const { return static_cast<int>(files->readsEndingIn("/vendor").size()); }

  std::shared_ptr<testing::RecordingFileSystem> files =
      std::make_shared<testing::RecordingFileSystem>(tree.root());
  LinuxAcceleratorPort watched{files, std::make_unique<FakeNvml>(nvml)};
};

TEST_F(GpuInventory, TheBusIsLookedOverOnceAndThenEverySixtiethReading) {
  watched.readAcceleratorServices();
  EXPECT_EQ(vendorReads(), 2);  // the Intel and the NVIDIA controller
  for (int reading = 2; reading <= LinuxAcceleratorPort::readingsPerScan; ++reading) {
    watched.readAcceleratorServices();
  }
  EXPECT_EQ(vendorReads(), 2);
  EXPECT_EQ(files->readsEndingIn("0000:01:00.0/power/runtime_status").size(),
            static_cast<std::size_t>(LinuxAcceleratorPort::readingsPerScan));
  watched.readAcceleratorServices();
  EXPECT_EQ(vendorReads(), 4);
}

TEST_F(GpuInventory, AGpuPluggedInIsFoundAtTheNextScan) {
  watched.readAcceleratorServices();
  tree.write("sys/class/drm/card2/device/vendor", "0x1002\n");
  tree.write("sys/class/drm/card2/device/gpu_busy_percent", "64\n");
  EXPECT_EQ(watched.readAcceleratorServices()->size(), 1u);
  for (int reading = 3; reading <= LinuxAcceleratorPort::readingsPerScan; ++reading) {
    watched.readAcceleratorServices();
  }
  const auto services = watched.readAcceleratorServices();
  ASSERT_EQ(services->size(), 2u);
  ASSERT_NE((*services)[0]->string("Card"), nullptr);
  EXPECT_EQ(*(*services)[0]->string("Card"), "card2");
  EXPECT_EQ((*services)[0]->dict("PerformanceStatistics")->integer("Device Utilization %"), 64);
}

TEST(LinuxAcceleratorPort, AnIntelMachineReadsNothingBetweenScans) {
  testing::TemporaryTree tree;
  tree.write("sys/bus/pci/devices/0000:00:02.0/vendor", "0x8086\n");
  tree.write("sys/bus/pci/devices/0000:00:02.0/class", "0x030000\n");
  tree.write("sys/class/drm/card0/device/vendor", "0x8086\n");
  auto files = std::make_shared<testing::RecordingFileSystem>(tree.root());
  LinuxAcceleratorPort port(files, std::make_unique<FakeNvml>(rtx4070()));
  port.readAcceleratorServices();
  files->forget();
  EXPECT_TRUE(port.readAcceleratorServices()->empty());
  EXPECT_EQ(files->totalReads(), 0);
}

}  // namespace
}  // namespace brimly
