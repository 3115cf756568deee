#include "desktop/QtPlatformArguments.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(QtPlatformArgumentsEdge, OptionWithoutItsValueIsIgnored) {
  const QtPlatformArguments options = qtPlatformArguments({"brimly", "-platform"});
  EXPECT_EQ(options.platform, std::nullopt);
}

TEST(QtPlatformArgumentsEdge, ProgramNameIsNotAnOption) {
  const QtPlatformArguments options = qtPlatformArguments({"-display", ":5"});
  EXPECT_EQ(options.display, std::nullopt);
}

TEST(QtPlatformArgumentsEdge, TwoDashesWorkAsOneAndTheLastOneCounts) {
  const QtPlatformArguments options =
      qtPlatformArguments({"brimly", "--platform", "xcb", "-platform", "offscreen"});
  EXPECT_EQ(options.platform, "offscreen");
}

TEST(QtPlatformArgumentsEdge, JoinedValuesAndOtherSpellingsAreNotOptions) {
  const QtPlatformArguments options =
      qtPlatformArguments({"brimly", "-platform=xcb", "-Display", ":5", "---display", ":6"});
  EXPECT_EQ(options.platform, std::nullopt);
  EXPECT_EQ(options.display, std::nullopt);
}

TEST(QtPlatformArguments, ReadsPlatformPluginFolderAndDisplay) {
  const QtPlatformArguments options = qtPlatformArguments(
      {"brimly", "-platform", "bogus", "-display", ":99", "--platformpluginpath", "/opt/qt"});
  EXPECT_EQ(options.platform, "bogus");
  EXPECT_EQ(options.display, ":99");
  EXPECT_EQ(options.pluginPath, "/opt/qt");
}

TEST(QtPlatformArguments, NothingGivenIsNothing) {
  const QtPlatformArguments options = qtPlatformArguments({"brimly", "--audit", "x"});
  EXPECT_EQ(options.platform, std::nullopt);
  EXPECT_EQ(options.pluginPath, std::nullopt);
  EXPECT_EQ(options.display, std::nullopt);
}

}  // namespace
}  // namespace brimly
