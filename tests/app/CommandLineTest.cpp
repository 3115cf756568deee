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

TEST(CommandLineHelpEdge, OnlyTheExactSwitchesAfterTheProgramNameAskForHelp) {
  EXPECT_FALSE(wantsHelp({"--help"}));
  EXPECT_FALSE(wantsHelp({"brimly", "--Help"}));
  EXPECT_FALSE(wantsHelp({"brimly", "--help=1"}));
  EXPECT_FALSE(wantsHelp({"brimly", "help"}));
  EXPECT_FALSE(wantsHelp({}));
  EXPECT_FALSE(wantsVersion({"--version"}));
  EXPECT_FALSE(wantsVersion({"brimly", "-v"}));
  EXPECT_FALSE(wantsVersion({"brimly", "--version=2"}));
}

TEST(CommandLineHelp, HelpAndVersionAreFoundAmongOtherArguments) {
  EXPECT_TRUE(wantsHelp({"brimly", "--help"}));
  EXPECT_TRUE(wantsHelp({"brimly", "-platform", "xcb", "-h"}));
  EXPECT_TRUE(wantsVersion({"brimly", "--audit", "--version"}));
  EXPECT_FALSE(wantsHelp({"brimly", "--version"}));
}

TEST(CommandLineHelp, UsageSaysWhatBrimlyDoesItsOptionsQtsOptionsAndTheExitStatuses) {
  const std::string usage = usageText();
  EXPECT_EQ(usage.rfind("Usage: brimly [--audit | --help | --version] [Qt options]\n", 0), 0u);
  for (const char* part :
       {"system tray", "  --audit ", "  -h, --help ", "  --version ", "  -platform <name> ",
        "  -display <name> ", "  0  ", "  1  ", "  3  "}) {
    EXPECT_NE(usage.find(part), std::string::npos) << part;
  }
  // Short enough for a terminal: no line wider than 100 columns, one screen in all.
  std::size_t start = 0;
  int lines = 0;
  for (std::size_t end; (end = usage.find('\n', start)) != std::string::npos; start = end + 1) {
    EXPECT_LE(end - start, 100u) << usage.substr(start, end - start);
    ++lines;
  }
  EXPECT_EQ(start, usage.size());  // ends with a line break
  EXPECT_LE(lines, 25);
}

TEST(CommandLineHelp, VersionLineNamesTheProgramAndItsVersion) {
  EXPECT_EQ(versionLine("0.1.0"), "Brimly 0.1.0\n");
  EXPECT_EQ(versionLine("dev"), "Brimly dev\n");
}

}  // namespace
}  // namespace brimly
