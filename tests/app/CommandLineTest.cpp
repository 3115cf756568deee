#include "app/CommandLine.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(CommandLineEdge, AuditAfterOtherArgumentsSelectsTheReport) {
  EXPECT_TRUE(wantsAudit({"brimly", "-v", "extra", "--audit"}));
}

TEST(CommandLineEdge, AuditAsTheProgramNameSelectsTheReport) {
  EXPECT_TRUE(wantsAudit({"--audit"}));
}

TEST(CommandLineEdge, OtherLetterCaseDoesNotSelectTheReport) {
  EXPECT_FALSE(wantsAudit({"brimly", "--Audit"}));
  EXPECT_FALSE(wantsAudit({"brimly", "--AUDIT"}));
}

TEST(CommandLineEdge, JoinedValueOrNearMissDoesNotSelectTheReport) {
  EXPECT_FALSE(wantsAudit({"brimly", "--audit=1"}));
  EXPECT_FALSE(wantsAudit({"brimly", "--audit "}));
  EXPECT_FALSE(wantsAudit({"brimly", "-audit"}));
  EXPECT_FALSE(wantsAudit({"brimly", "audit"}));
}

TEST(CommandLineEdge, NoArgumentsAtAllStartsThePanel) {
  EXPECT_FALSE(wantsAudit({}));
}

TEST(CommandLine, PlainStartStartsThePanel) {
  EXPECT_FALSE(wantsAudit({"/usr/bin/brimly"}));
}

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
