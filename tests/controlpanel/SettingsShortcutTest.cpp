#include "controlpanel/SettingsShortcut.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(SettingsShortcut, CommandCommaMatches) {
  EXPECT_TRUE(isSettingsShortcut(true, ","));
}

TEST(SettingsShortcut, APlainCommaACommandPeriodAndNoCharactersPassThrough) {
  EXPECT_FALSE(isSettingsShortcut(false, ","));
  EXPECT_FALSE(isSettingsShortcut(true, "."));
  EXPECT_FALSE(isSettingsShortcut(true, ""));
  EXPECT_FALSE(isSettingsShortcut(true, ",,"));
}

}  // namespace
}  // namespace brimly
