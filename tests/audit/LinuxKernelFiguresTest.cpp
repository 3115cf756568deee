// The Linux report's raw figures, read through the backend's diagnostics from fixture trees.
#include "audit/system/LinuxKernelFigures.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <fstream>

#include "platform/linux/RootedFileSystem.h"

namespace brimly {
namespace {

namespace fs = std::filesystem;

// Refuses the reads of every energy_uj file with EACCES, as the kernel does for ordinary users
// (the tests may run as root, for whom file modes refuse nothing).
class RefusingEnergyCounters final : public FileSystemView {
 public:
  explicit RefusingEnergyCounters(std::shared_ptr<const FileSystemView> inner)
      : inner_(std::move(inner)) {}
  FileRead read(std::string_view path) const override {
    if (path.ends_with("/energy_uj")) return FileRead{"", EACCES};
    return inner_->read(path);
  }
  std::vector<std::string> list(std::string_view path) const override { return inner_->list(path); }
  bool exists(std::string_view path) const override { return inner_->exists(path); }
  std::string linkTarget(std::string_view path) const override { return inner_->linkTarget(path); }

 private:
  std::shared_ptr<const FileSystemView> inner_;
};

class FixedStats final : public FileSystemStatsSource {
 public:
  explicit FixedStats(std::optional<FileSystemStats> stats) : stats_(stats) {}
  std::optional<FileSystemStats> statistics(const std::string&) const override { return stats_; }

 private:
  std::optional<FileSystemStats> stats_;
};

class LinuxKernelFiguresTest : public ::testing::Test {
 protected:
  void SetUp() override {
    root_ = fs::path(::testing::TempDir()) /
            ("audit-figures-" +
             std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    fs::remove_all(root_);
    fs::create_directories(root_);
  }
  void TearDown() override { fs::remove_all(root_); }

  void write(const std::string& path, const std::string& text) {
    fs::create_directories((root_ / path).parent_path());
    std::ofstream(root_ / path) << text;
  }

  LinuxKernelFigures figures(bool refuseEnergy = false,
                             std::optional<FileSystemStats> stats = std::nullopt) {
    LinuxSources sources;
    sources.root = root_.string();
    std::shared_ptr<const FileSystemView> files =
        std::make_shared<RootedFileSystem>(root_.string());
    if (refuseEnergy) files = std::make_shared<RefusingEnergyCounters>(files);
    sources.files = files;
    sources.fileSystemStats = std::make_shared<FixedStats>(stats);
    return LinuxKernelFigures(sources);
  }

  std::string at(const std::string& path) const { return (root_ / path).string(); }

  fs::path root_;
};

TEST_F(LinuxKernelFiguresTest, MeminfoFieldsComeInKiBWithMissingOnesMarked) {
  write("proc/meminfo",
        "MemTotal:       16108452 kB\nMemFree:         1843212 kB\n"
        "Cached:          6894332 kB\nSwapTotal:       8388604 kB\n");
  const MeminfoFigures meminfo = figures().meminfo();
  EXPECT_EQ(meminfo.path, at("proc/meminfo"));
  EXPECT_EQ(meminfo.error, "");
  auto find = [&](const std::string& name) {
    for (const auto& [field, value] : meminfo.fieldsKiB) {
      if (field == name) return value;
    }
    ADD_FAILURE() << name << " not listed";
    return std::optional<std::uint64_t>{};
  };
  EXPECT_EQ(find("MemTotal"), 16'108'452u);
  EXPECT_EQ(find("MemAvailable"), std::nullopt);
  EXPECT_EQ(find("SwapTotal"), 8'388'604u);
}

TEST_F(LinuxKernelFiguresTest, AnUnreadableMeminfoSaysWhy) {
  const MeminfoFigures meminfo = figures().meminfo();
  EXPECT_EQ(meminfo.error, "No such file or directory");
}

TEST_F(LinuxKernelFiguresTest, RootFilesystemUsesTheBlockSizeWhenNoFragmentSizeIsGiven) {
  FileSystemStats stats;
  stats.fragmentSize = 0;
  stats.blockSize = 4096;
  stats.blocks = 1000;
  stats.freeBlocks = 600;
  stats.availableBlocks = 550;
  EXPECT_EQ(figures(false, stats).rootFilesystem(),
            (RootFilesystemFigures{4096, 1000, 600, 550, 4096}));
  EXPECT_EQ(figures(false, std::nullopt).rootFilesystem(), std::nullopt);
}

TEST_F(LinuxKernelFiguresTest, NoPowercapMeansNoZones) {
  auto source = figures();
  EXPECT_EQ(source.energyCounterAccess(), EnergyCounterAccess::noZones);
  EXPECT_TRUE(source.energyNotes().empty());
}

TEST_F(LinuxKernelFiguresTest, RefusedCountersAreAPermissionProblem) {
  write("sys/class/powercap/intel-rapl:0/name", "package-0\n");
  write("sys/class/powercap/intel-rapl:0/energy_uj", "50632017932\n");
  write("sys/class/powercap/intel-rapl:0:0/name", "core\n");
  write("sys/class/powercap/intel-rapl:0:0/energy_uj", "21030451277\n");
  auto refused = figures(true);
  EXPECT_EQ(refused.energyCounterAccess(), EnergyCounterAccess::notPermitted);
  EXPECT_EQ(refused.energyNotes(),
            std::vector<std::string>{at("sys/class/powercap/intel-rapl:0") +
                                     " (package-0): energy_uj unreadable (Permission denied)"});

  auto readable = figures(false);
  EXPECT_EQ(readable.energyCounterAccess(), EnergyCounterAccess::readable);
  EXPECT_EQ(readable.energyNotes(), std::vector<std::string>{at("sys/class/powercap/intel-rapl:0") +
                                                             " (package-0): energy_uj readable"});
}

TEST_F(LinuxKernelFiguresTest, GpuNotesNameEachCardAndNvml) {
  EXPECT_EQ(figures().gpuNotes(),
            (std::vector<std::string>{"DRM cards: none under /sys/class/drm",
                                      "NVML: not asked, no NVIDIA display controller"}));

  write("sys/class/drm/card0/device/uevent", "DRIVER=i915\n");
  write("sys/class/drm/card1/device/uevent", "DRIVER=amdgpu\n");
  write("sys/class/drm/card1/device/gpu_busy_percent", "37\n");
  EXPECT_EQ(figures().gpuNotes(),
            (std::vector<std::string>{
                at("sys/class/drm/card0") + " (i915): no gpu_busy_percent (only amdgpu has one)",
                at("sys/class/drm/card1") + " (amdgpu): gpu_busy_percent 37%",
                "NVML: not asked, no NVIDIA display controller"}));
}

TEST_F(LinuxKernelFiguresTest, TemperatureNotesListSourcesLeftUnread) {
  write("sys/class/hwmon/hwmon0/name", "coretemp\n");
  write("sys/class/hwmon/hwmon0/temp1_input", "58000\n");
  write("sys/class/hwmon/hwmon1/name", "nvme\n");
  write("sys/class/hwmon/hwmon1/temp1_input", "38850\n");
  write("sys/class/thermal/thermal_zone0/type", "x86_pkg_temp\n");
  write("sys/class/thermal/thermal_zone0/temp", "58000\n");
  write("sys/class/thermal/thermal_zone1/type", "iwlwifi_1\n");
  write("sys/class/thermal/thermal_zone1/temp", "40000\n");
  EXPECT_EQ(
      figures().temperatureNotes(),
      (std::vector<std::string>{
          at("sys/class/hwmon/hwmon1") + " (nvme): not read, each read costs a device command",
          at("sys/class/thermal/thermal_zone1") +
              " (iwlwifi_1): not read, each read asks the Wi-Fi firmware"}));
}

TEST_F(LinuxKernelFiguresTest, NoSensorsGiveNoNotes) {
  EXPECT_TRUE(figures().temperatureNotes().empty());
}

}  // namespace
}  // namespace brimly
