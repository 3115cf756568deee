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

}  // namespace
}  // namespace brimly
