#include "platform/XdgBaseDirectories.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(XdgConfigHomeEdge, UnsetEmptyOrRelativeValueFallsBackToHome) {
  EXPECT_EQ(configHome(nullptr, "/home/ann"), "/home/ann/.config");
  EXPECT_EQ(configHome("", "/home/ann"), "/home/ann/.config");
  EXPECT_EQ(configHome("conf", "/home/ann/"), "/home/ann/.config");
  EXPECT_EQ(configHome("~/.config", "/home/ann"), "/home/ann/.config");
}

TEST(XdgConfigHomeEdge, NoAbsoluteValueGivesNone) {
  EXPECT_EQ(configHome(nullptr, nullptr), "");
  EXPECT_EQ(configHome("", ""), "");
  EXPECT_EQ(configHome("conf", "home/ann"), "");
}

TEST(XdgConfigHomeEdge, BytesThatAreNotUtf8AreAPathLikeAnyOther) {
  EXPECT_EQ(configHome("/srv/caf\xe9", "/home/ann"), "/srv/caf\xe9");
}

TEST(XdgConfigHome, AbsoluteValueComesFirstTidied) {
  EXPECT_EQ(configHome("/srv/conf", "/home/ann"), "/srv/conf");
  EXPECT_EQ(configHome("/srv//conf/", "/home/ann"), "/srv/conf");
  EXPECT_EQ(configHome("/", "/home/ann"), "/");
  EXPECT_EQ(configHome(nullptr, "/"), "/.config");
}

TEST(XdgBaseDirectoryValue, OnlyAnAbsolutePathNamesOne) {
  EXPECT_TRUE(isAbsoluteBaseDirectory("/run/user/1000"));
  EXPECT_FALSE(isAbsoluteBaseDirectory("run/user/1000"));
  EXPECT_FALSE(isAbsoluteBaseDirectory(""));
  EXPECT_FALSE(isAbsoluteBaseDirectory(nullptr));
}

}  // namespace
}  // namespace brimly
