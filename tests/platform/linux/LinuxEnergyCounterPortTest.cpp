#include "platform/linux/LinuxEnergyCounterPort.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "LinuxTestSupport.h"
#include "TemporaryTree.h"
#include "platform/linux/RootedFileSystem.h"

namespace brimly {
namespace {

using testing::recordingFixture;
using Counters = std::vector<EnergyCounter>;

constexpr std::int64_t kIntelRange = 262143328850;

TEST(LinuxEnergyCounterPort, CountsOnlyThePackageWhenRootMayReadIt) {
  LinuxEnergyCounterPort port(recordingFixture("intel-laptop-discharging"));
  EXPECT_TRUE(port.isAvailable());
  EXPECT_DOUBLE_EQ(port.joulesPerUnit(), 1e-6);
  // core and uncore are inside the package; psys holds it; the mmio zone is the same counter.
  EXPECT_EQ(port.readCounters(), (Counters{{"package-0 Energy", 50632017932, kIntelRange}}));
}

TEST(LinuxEnergyCounterPort, AnOrdinaryUserCannotReachTheCounters) {
  const auto files = recordingFixture("intel-laptop-discharging");
  files->refuse("energy_uj", EACCES);
  LinuxEnergyCounterPort port(files);
  EXPECT_FALSE(port.isAvailable());
  EXPECT_EQ(port.readCounters(), std::nullopt);
}

TEST(LinuxEnergyCounterPort, AmdLaptopWithoutPowercap) {
  LinuxEnergyCounterPort port(recordingFixture("amd-laptop-charging"));
  EXPECT_FALSE(port.isAvailable());
  EXPECT_EQ(port.readCounters(), std::nullopt);
}

TEST(LinuxEnergyCounterPort, NvidiaDesktopWithAnUnreadableCounter) {
  LinuxEnergyCounterPort port(recordingFixture("nvidia-desktop"));
  EXPECT_FALSE(port.isAvailable());
  EXPECT_EQ(port.readCounters(), std::nullopt);
}

TEST(LinuxEnergyCounterPort, VirtualMachinesHaveNoCounters) {
  EXPECT_FALSE(LinuxEnergyCounterPort(recordingFixture("vm-bare")).isAvailable());
  EXPECT_FALSE(LinuxEnergyCounterPort(recordingFixture("suspended-dgpu")).isAvailable());
}

TEST(LinuxEnergyCounterPort, GarbageCountersAreUnavailable) {
  LinuxEnergyCounterPort port(recordingFixture("broken"));
  EXPECT_FALSE(port.isAvailable());
  EXPECT_EQ(port.readCounters(), std::nullopt);
}

class RaplTree : public ::testing::Test {
 protected:
  void zone(const std::string& id, const std::string& name, const std::string& energy,
            const std::string& range = "262143328850") {
    tree.write("sys/class/powercap/" + id + "/name", name + "\n");
    tree.write("sys/class/powercap/" + id + "/energy_uj", energy + "\n");
    tree.write("sys/class/powercap/" + id + "/max_energy_range_uj", range + "\n");
  }
  std::shared_ptr<RootedFileSystem> files() const {
    return std::make_shared<RootedFileSystem>(tree.root());
  }
  testing::TemporaryTree tree;
};

TEST_F(RaplTree, MemoryAndEverySocketAreCounted) {
  zone("intel-rapl:0", "package-0", "100");
  zone("intel-rapl:0:0", "core", "50");
  zone("intel-rapl:0:1", "dram", "30", "65712999613");
  zone("intel-rapl:1", "package-1", "200");
  const Counters expected{{"package-0 Energy", 100, kIntelRange},
                          {"package-0 dram Energy", 30, 65712999613},
                          {"package-1 Energy", 200, kIntelRange}};
  EXPECT_EQ(LinuxEnergyCounterPort(files()).readCounters(), expected);
}

TEST_F(RaplTree, CountersFollowTheFiles) {
  zone("intel-rapl:0", "package-0", "50632017932");
  LinuxEnergyCounterPort port(files());
  zone("intel-rapl:0", "package-0", "50641234932");
  EXPECT_EQ(port.readCounters()->front().value, 50641234932);
}

TEST_F(RaplTree, AnUnreadableRangeMeansTheCounterNeverWraps) {
  zone("intel-rapl:0", "package-0", "10", "garbage");
  EXPECT_EQ(LinuxEnergyCounterPort(files()).readCounters()->front().wrapsAt, 0);
}

TEST_F(RaplTree, ACounterThatFailsLaterGivesNothingRatherThanAPartialSum) {
  zone("intel-rapl:0", "package-0", "10");
  zone("intel-rapl:1", "package-1", "10");
  LinuxEnergyCounterPort port(files());
  ASSERT_EQ(port.readCounters()->size(), 2u);
  tree.write("sys/class/powercap/intel-rapl:1/energy_uj", "\n");
  EXPECT_EQ(port.readCounters(), std::nullopt);
  EXPECT_TRUE(port.isAvailable());
}

TEST_F(RaplTree, APsysZoneAloneIsNotCounted) {
  zone("intel-rapl:1", "psys", "10");
  EXPECT_FALSE(LinuxEnergyCounterPort(files()).isAvailable());
}

TEST_F(RaplTree, NegativeCountersAreRejected) {
  zone("intel-rapl:0", "package-0", "-5");
  EXPECT_FALSE(LinuxEnergyCounterPort(files()).isAvailable());
}

}  // namespace
}  // namespace brimly
