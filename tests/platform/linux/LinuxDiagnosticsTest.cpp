#include "platform/linux/LinuxDiagnostics.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "LinuxTestSupport.h"
#include "TemporaryTree.h"
#include "platform/linux/RootedFileSystem.h"

namespace brimly {
namespace {

using testing::FakeFileSystemStats;
using testing::FakeNvml;
using testing::FakeNvmlState;
using testing::RecordingFileSystem;

struct Machine {
  std::shared_ptr<RecordingFileSystem> files;
  std::shared_ptr<FakeNvmlState> nvml = std::make_shared<FakeNvmlState>();
  std::shared_ptr<FakeFileSystemStats> stats =
      std::make_shared<FakeFileSystemStats>(FileSystemStats{4096, 4096, 1000, 600, 500});
  std::string root;

  explicit Machine(std::string rootPath)
      : files(std::make_shared<RecordingFileSystem>(rootPath)), root(std::move(rootPath)) {}

  LinuxDiagnostics diagnostics() const {
    LinuxSources sources;
    sources.files = files;
    sources.root = root;
    sources.fileSystemStats = stats;
    sources.diskPath = "/";
    sources.makeNvml = [state = nvml] { return std::make_unique<FakeNvml>(state); };
    return LinuxDiagnostics(std::move(sources));
  }
};

Machine fixture(std::string_view name) {
  return Machine(testing::fixturePath(name));
}

TEST(LinuxDiagnosticsCpu, ShowsTheAggregateLineItsColumnsAndTheTicks) {
  const Machine machine = fixture("intel-laptop-discharging");
  const CpuDiagnostics cpu = machine.diagnostics().cpu();
  EXPECT_EQ(cpu.path, machine.root + "/proc/stat");
  EXPECT_EQ(cpu.error, 0);
  EXPECT_EQ(cpu.line, "cpu  46000 180 15500 1205000 5300 540 560 0 0 0");
  ASSERT_TRUE(cpu.columns.has_value());
  EXPECT_EQ(cpu.columns->iowait, 5300u);
  EXPECT_EQ(cpu.ticks, (CpuTicks{46000, 16600, 1210300, 180}));
  EXPECT_EQ(machine.files->readsOf("proc/stat"), 1);
}

TEST(LinuxDiagnosticsCpu, AMalformedLineIsShownWithoutFigures) {
  const CpuDiagnostics cpu = fixture("broken").diagnostics().cpu();
  EXPECT_EQ(cpu.line, "cpu  12 3");
  EXPECT_EQ(cpu.columns, std::nullopt);
  EXPECT_EQ(cpu.ticks, std::nullopt);
}

TEST(LinuxDiagnosticsCpu, AMissingFileShowsItsError) {
  testing::TemporaryTree tree;
  const CpuDiagnostics cpu = Machine(tree.root()).diagnostics().cpu();
  EXPECT_EQ(cpu.error, ENOENT);
  EXPECT_EQ(cpu.line, std::nullopt);
}

TEST(LinuxDiagnosticsMemory, ListsTheFieldsBehindTheReading) {
  const MemoryDiagnostics memory = fixture("intel-laptop-discharging").diagnostics().memory();
  ASSERT_EQ(memory.fieldsKiB.size(), 11u);
  EXPECT_EQ(memory.fieldsKiB[0],
            (std::pair<std::string, std::optional<std::uint64_t>>{"MemTotal", 16108452}));
  EXPECT_EQ(memory.fieldsKiB[2].second, 8921640u);
  EXPECT_EQ(memory.fieldsKiB[10].second, 262144u);  // Zswapped
  ASSERT_TRUE(memory.reading.vm.has_value());
  EXPECT_EQ(memory.reading.vm->activePages, 7186812u);
}

TEST(LinuxDiagnosticsMemory, MissingFieldsAreShownAsMissing) {
  const MemoryDiagnostics vm = fixture("vm-bare").diagnostics().memory();
  EXPECT_EQ(vm.fieldsKiB[9].first, "Zswap");
  EXPECT_EQ(vm.fieldsKiB[9].second, std::nullopt);
  const MemoryDiagnostics broken = fixture("broken").diagnostics().memory();
  EXPECT_EQ(broken.fieldsKiB[0].second, std::nullopt);  // too large to be a number
  EXPECT_EQ(broken.reading.vm, std::nullopt);
}

TEST(LinuxDiagnosticsDisk, ShowsTheStatvfsFiguresAndCapacities) {
  Machine machine = fixture("vm-bare");
  const DiskDiagnostics disk = machine.diagnostics().disk();
  EXPECT_EQ(disk.path, "/");
  EXPECT_EQ(disk.stats, (FileSystemStats{4096, 4096, 1000, 600, 500}));
  EXPECT_EQ(disk.capacities, (DiskCapacities{2048000, 4096000, 1638400}));
  machine.stats = std::make_shared<FakeFileSystemStats>(std::nullopt);
  EXPECT_EQ(machine.diagnostics().disk().stats, std::nullopt);
}

TEST(LinuxDiagnosticsPower, ListsEverySupplyWithItsUeventLines) {
  const Machine machine = fixture("intel-laptop-discharging");
  const PowerDiagnostics power = machine.diagnostics().power();
  ASSERT_EQ(power.supplies.size(), 2u);
  EXPECT_EQ(power.supplies[0].name, "AC");
  const PowerSupplyDiagnostics& battery = power.supplies[1];
  EXPECT_EQ(battery.path, machine.root + "/sys/class/power_supply/BAT0");
  EXPECT_TRUE(battery.fromUevent);
  ASSERT_FALSE(battery.ueventLines.empty());
  EXPECT_EQ(battery.ueventLines[0],
            (std::pair<std::string, std::string>{"POWER_SUPPLY_NAME", "BAT0"}));
  EXPECT_EQ(power.snapshot.descriptions[0]->integer("Current"), -1450);
}

TEST(LinuxDiagnosticsPower, ShowsRawLinesAndFileFallbacks) {
  const PowerDiagnostics power = fixture("broken").diagnostics().power();
  ASSERT_EQ(power.supplies.size(), 3u);  // AC, BAT0, BAT1
  const PowerSupplyDiagnostics& ac = power.supplies[0];
  EXPECT_EQ(ac.ueventLines.front().first, "DEVTYPE");
  EXPECT_EQ(ac.ueventLines.size(), 6u);  // duplicates and OF_ lines kept as printed
  const PowerSupplyDiagnostics& battery = power.supplies[1];
  EXPECT_FALSE(battery.fromUevent);
  EXPECT_NE(std::find(battery.properties.begin(), battery.properties.end(),
                      std::pair<std::string, std::string>{"capacity", "n/a"}),
            battery.properties.end());
  EXPECT_TRUE(power.supplies[2].properties.empty());
}

TEST(LinuxDiagnosticsTemperatures, ListsSkippedChipsWithTheirReason) {
  const Machine machine = fixture("intel-laptop-discharging");
  const TemperatureDiagnostics temperatures = machine.diagnostics().temperatures();
  ASSERT_EQ(temperatures.chips.size(), 5u);
  const HwmonChipDiagnostics& nvme = temperatures.chips[1];
  EXPECT_EQ(nvme.name, "nvme");
  EXPECT_EQ(nvme.skipReason, "each read costs a device command");
  ASSERT_EQ(nvme.inputs.size(), 2u);
  EXPECT_FALSE(nvme.inputs[0].read);
  EXPECT_EQ(nvme.inputs[0].sensorName, "nvme Composite");
  const HwmonChipDiagnostics& coretemp = temperatures.chips[3];
  EXPECT_EQ(coretemp.path, machine.root + "/sys/class/hwmon/hwmon3");
  EXPECT_EQ(coretemp.skipReason, "");
  ASSERT_EQ(coretemp.inputs.size(), 5u);
  EXPECT_EQ(coretemp.inputs[0].text, "58000");
  EXPECT_EQ(coretemp.inputs[0].celsius, 58.0);
  EXPECT_EQ(coretemp.inputs[4].path, machine.root + "/sys/class/hwmon/hwmon3/temp10_input");
  ASSERT_EQ(temperatures.zones.size(), 5u);
  EXPECT_EQ(temperatures.zones[3].skipReason, "each read asks the Wi-Fi firmware");
  EXPECT_EQ(temperatures.zones[4].sensorName, "x86_pkg_temp (thermal_zone4)");
  EXPECT_EQ(machine.files->readsOf("sys/class/hwmon/hwmon1/temp1_input"), 0);
}

TEST(LinuxDiagnosticsTemperatures, ASleepingGpuIsListedButNotRead) {
  const Machine machine = fixture("suspended-dgpu");
  const TemperatureDiagnostics temperatures = machine.diagnostics().temperatures();
  ASSERT_EQ(temperatures.chips.size(), 2u);
  EXPECT_EQ(temperatures.chips[1].runtimeStatus, "suspended");
  EXPECT_EQ(temperatures.chips[1].skipReason, "device asleep");
  EXPECT_TRUE(machine.files->readsEndingIn("hwmon1/temp1_input").empty());
}

TEST(LinuxDiagnosticsTemperatures, ShowsWhatBrokenFilesHeld) {
  const TemperatureDiagnostics temperatures = fixture("broken").diagnostics().temperatures();
  const HwmonChipDiagnostics& chip = temperatures.chips[0];
  ASSERT_EQ(chip.inputs.size(), 5u);
  EXPECT_EQ(chip.inputs[1].text, "garbage");
  EXPECT_EQ(chip.inputs[1].celsius, std::nullopt);
  EXPECT_EQ(chip.inputs[4].error, EISDIR);
  EXPECT_EQ(temperatures.chips[2].attributeDirectory.substr(
                temperatures.chips[2].attributeDirectory.size() - 7),
            "/device");
}

TEST(LinuxDiagnosticsRapl, ListsEveryZoneWithReadabilityAndChannel) {
  Machine machine = fixture("intel-laptop-discharging");
  machine.files->refuse("energy_uj", EACCES);
  const std::vector<RaplZoneDiagnostics> zones = machine.diagnostics().raplZones();
  ASSERT_EQ(zones.size(), 4u);  // the mmio zone is not of this control type
  EXPECT_EQ(zones[0].name, "package-0");
  EXPECT_TRUE(zones[0].topLevel);
  EXPECT_EQ(zones[0].channel, "package-0 Energy");
  EXPECT_EQ(zones[0].error, EACCES);
  EXPECT_EQ(describeError(zones[0].error), "Permission denied");
  EXPECT_EQ(zones[0].energyMicrojoules, std::nullopt);
  EXPECT_EQ(zones[0].maxEnergyRangeMicrojoules, 262143328850);
  EXPECT_EQ(zones[1].name, "core");
  EXPECT_FALSE(zones[1].topLevel);
  EXPECT_EQ(zones[1].channel, "");
  EXPECT_EQ(zones[3].name, "psys");
}

TEST(LinuxDiagnosticsRapl, ReadableCountersShowTheirValue) {
  const auto zones = fixture("intel-laptop-discharging").diagnostics().raplZones();
  EXPECT_EQ(zones[0].error, 0);
  EXPECT_EQ(zones[0].energyMicrojoules, 50632017932);
}

TEST(LinuxDiagnosticsGpu, ShowsCardsAndBusyFigures) {
  const GpuDiagnostics gpus = fixture("amd-laptop-charging").diagnostics().gpus();
  ASSERT_EQ(gpus.cards.size(), 1u);
  EXPECT_EQ(gpus.cards[0].card.driver, "amdgpu");
  EXPECT_EQ(gpus.cards[0].busyPercent, 23);
  EXPECT_EQ(gpus.nvml.skipReason, "no NVIDIA display controller");
}

TEST(LinuxDiagnosticsGpu, ASleepingCardIsNotRead) {
  const Machine machine = fixture("suspended-dgpu");
  const GpuDiagnostics gpus = machine.diagnostics().gpus();
  ASSERT_EQ(gpus.cards.size(), 2u);
  EXPECT_EQ(gpus.cards[0].card.driver, "i915");
  EXPECT_FALSE(gpus.cards[0].card.hasBusyPercent);
  EXPECT_EQ(gpus.cards[1].card.runtimeStatus, "suspended");
  EXPECT_EQ(gpus.cards[1].skipReason, "device asleep");
  EXPECT_EQ(gpus.cards[1].busyPercent, std::nullopt);
  EXPECT_TRUE(machine.files->readsEndingIn("gpu_busy_percent").empty());
}

TEST(LinuxDiagnosticsGpu, AsksNvmlOnceAndShutsItDown) {
  Machine machine = fixture("nvidia-desktop");
  machine.nvml->devices.push_back({0, true, "NVIDIA GeForce RTX 4070", 37u, 12u});
  const GpuDiagnostics gpus = machine.diagnostics().gpus();
  ASSERT_EQ(gpus.nvidiaDevices.size(), 1u);
  EXPECT_EQ(gpus.nvidiaDevices[0].slot, "0000:01:00.0");
  EXPECT_EQ(gpus.nvml.skipReason, "");
  EXPECT_TRUE(gpus.nvml.opened);
  EXPECT_EQ(gpus.nvml.deviceCount, 1u);
  ASSERT_EQ(gpus.nvml.devices.size(), 1u);
  EXPECT_EQ(gpus.nvml.devices[0].gpuPercent, 37u);
  EXPECT_EQ(machine.nvml->opens, 1);
  EXPECT_EQ(machine.nvml->closes, 1);
}

TEST(LinuxDiagnosticsGpu, ShowsWhyNvmlCouldNotOpen) {
  Machine machine = fixture("nvidia-desktop");
  machine.nvml->openSucceeds = false;
  const GpuDiagnostics gpus = machine.diagnostics().gpus();
  EXPECT_FALSE(gpus.nvml.opened);
  EXPECT_EQ(gpus.nvml.error, "fake failure");
}

TEST(LinuxDiagnosticsGpu, NvmlIsLeftAloneWhileAnNvidiaGpuSleeps) {
  testing::TemporaryTree tree;
  tree.write("sys/bus/pci/devices/0000:01:00.0/vendor", "0x10de\n");
  tree.write("sys/bus/pci/devices/0000:01:00.0/class", "0x030200\n");
  tree.write("sys/bus/pci/devices/0000:01:00.0/power/runtime_status", "suspended\n");
  Machine machine(tree.root());
  const GpuDiagnostics gpus = machine.diagnostics().gpus();
  EXPECT_EQ(gpus.nvml.skipReason, "an NVIDIA GPU is asleep");
  EXPECT_EQ(machine.nvml->opens, 0);
}

TEST(LinuxDiagnostics, CollectGathersEverySection) {
  const Machine machine = fixture("amd-laptop-charging");
  const LinuxDiagnostics diagnostics = machine.diagnostics();
  const LinuxDiagnosticReport report = diagnostics.collect();
  EXPECT_EQ(report.cpu.ticks, diagnostics.cpu().ticks);
  EXPECT_EQ(report.memory.reading.vm, diagnostics.memory().reading.vm);
  EXPECT_EQ(report.disk.capacities, diagnostics.disk().capacities);
  EXPECT_EQ(report.power.supplies.size(), 3u);
  EXPECT_EQ(report.temperatures.chips.size(), 4u);
  EXPECT_TRUE(report.raplZones.empty());
  EXPECT_EQ(report.gpus.cards.size(), 1u);
}

TEST(LinuxDiagnostics, DescribeErrorGivesWords) {
  EXPECT_EQ(describeError(0), "");
  EXPECT_EQ(describeError(ENOENT), "No such file or directory");
}

TEST(LinuxDiagnostics, TheRunningSystemCanBeDescribed) {
  const LinuxDiagnosticReport report = LinuxDiagnostics().collect();
  EXPECT_EQ(report.cpu.path, "/proc/stat");
  EXPECT_TRUE(report.cpu.ticks.has_value());
  EXPECT_EQ(report.memory.path, "/proc/meminfo");
  EXPECT_TRUE(report.disk.stats.has_value());
}

}  // namespace
}  // namespace brimly
