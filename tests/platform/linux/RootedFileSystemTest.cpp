#include "platform/linux/RootedFileSystem.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "TemporaryTree.h"

namespace brimly {
namespace {

using testing::TemporaryTree;

TEST(RootedFileSystem, ReadsFilesBelowItsRoot) {
  TemporaryTree tree;
  tree.write("proc/stat", "cpu  1 2 3 4\n");
  const RootedFileSystem files(tree.root());
  const FileRead read = files.read("proc/stat");
  EXPECT_TRUE(read.ok());
  EXPECT_EQ(read.text, "cpu  1 2 3 4\n");
  EXPECT_EQ(files.read("/proc/stat").text, "cpu  1 2 3 4\n");  // a leading slash stays inside
}

TEST(RootedFileSystem, AMissingFileGivesItsError) {
  TemporaryTree tree;
  const FileRead read = RootedFileSystem(tree.root()).read("proc/meminfo");
  EXPECT_FALSE(read.ok());
  EXPECT_EQ(read.error, ENOENT);
  EXPECT_TRUE(read.text.empty());
}

TEST(RootedFileSystem, ReadingADirectoryFailsAtReadTime) {
  TemporaryTree tree;
  tree.makeDirectory("sys/class/hwmon/hwmon0/temp1_input");
  const FileRead read = RootedFileSystem(tree.root()).read("sys/class/hwmon/hwmon0/temp1_input");
  EXPECT_FALSE(read.ok());
  EXPECT_EQ(read.error, EISDIR);
}

TEST(RootedFileSystem, AFifoDoesNotBlock) {
  TemporaryTree tree;
  tree.makeFifo("proc/stat");
  const FileRead read = RootedFileSystem(tree.root()).read("proc/stat");
  EXPECT_TRUE(read.ok());
  EXPECT_TRUE(read.text.empty());
}

TEST(RootedFileSystem, AnOversizedFileIsCutAtTheCap) {
  TemporaryTree tree;
  tree.write("big", std::string(RootedFileSystem::kReadCap + 100, 'x'));
  EXPECT_EQ(RootedFileSystem(tree.root()).read("big").text.size(), RootedFileSystem::kReadCap);
}

TEST(RootedFileSystem, ListsInNaturalOrderWithoutHiddenEntries) {
  TemporaryTree tree;
  for (const char* name : {"hwmon10", "hwmon2", "hwmon1", ".keep"}) {
    tree.write(std::string("sys/class/hwmon/") + name + "/name", "x\n");
  }
  EXPECT_EQ(RootedFileSystem(tree.root()).list("sys/class/hwmon"),
            (std::vector<std::string>{"hwmon1", "hwmon2", "hwmon10"}));
  EXPECT_TRUE(RootedFileSystem(tree.root()).list("sys/class/missing").empty());
}

TEST(RootedFileSystem, FollowsLinksAndReportsTheirTargets) {
  TemporaryTree tree;
  tree.write("sys/devices/pci0000:00/0000:00:02.0/vendor", "0x8086\n");
  tree.makeSymlink("sys/class/drm/card0/device", "../../../devices/pci0000:00/0000:00:02.0");
  const RootedFileSystem files(tree.root());
  EXPECT_EQ(files.read("sys/class/drm/card0/device/vendor").text, "0x8086\n");
  EXPECT_EQ(files.linkTarget("sys/class/drm/card0/device"),
            "../../../devices/pci0000:00/0000:00:02.0");
  EXPECT_EQ(files.linkTarget("sys/devices/pci0000:00/0000:00:02.0/vendor"), "");
  EXPECT_TRUE(files.exists("sys/class/drm/card0/device/vendor"));
  EXPECT_FALSE(files.exists("sys/class/drm/card1"));
}

TEST(RootedFileSystem, AnEmptyRootMeansTheSystemRoot) {
  EXPECT_EQ(RootedFileSystem("").root(), "/");
  EXPECT_EQ(RootedFileSystem("").absolute("proc/stat"), "/proc/stat");
  EXPECT_EQ(RootedFileSystem("/tmp/x/").absolute("proc/stat"), "/tmp/x/proc/stat");
}

}  // namespace
}  // namespace brimly
