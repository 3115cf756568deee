#include "app/DisplayCheck.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

DisplayEnvironment env(const char* qpaPlatform, const char* display, const char* waylandDisplay) {
  return DisplayEnvironment{qpaPlatform, display, waylandDisplay};
}

const auto opens = [] { return true; };
const auto refuses = [] { return false; };

TEST(DisplayCheckEdge, NoVariablesAtAllMeansNoDisplay) {
  EXPECT_FALSE(displayAvailable(env("", "", ""), opens));
}

TEST(DisplayCheckEdge, DisplaySetButServerUnreachableMeansNoDisplay) {
  EXPECT_FALSE(displayAvailable(env("", ":9", ""), refuses));
}

TEST(DisplayCheckEdge, ServerIsNotAskedWhenNoDisplayIsNamed) {
  bool asked = false;
  EXPECT_FALSE(displayAvailable(env("", "", ""), [&] {
    asked = true;
    return true;
  }));
  EXPECT_FALSE(asked);
}

TEST(DisplayCheckEdge, WaylandOnlyCountsWithoutAskingX) {
  bool asked = false;
  EXPECT_TRUE(displayAvailable(env("", "", "wayland-0"), [&] {
    asked = true;
    return false;
  }));
  EXPECT_FALSE(asked);
}

TEST(DisplayCheckEdge, ChosenHeadlessPlatformNeedsNoDisplay) {
  EXPECT_TRUE(displayAvailable(env("offscreen", "", ""), refuses));
  EXPECT_TRUE(displayAvailable(env("vnc:size=800x600", "", ""), refuses));
}

TEST(DisplayCheckEdge, ChosenX11NeedsTheServer) {
  EXPECT_FALSE(displayAvailable(env("xcb", "", "wayland-0"), refuses));
  EXPECT_TRUE(displayAvailable(env("xcb", ":0", ""), opens));
}

TEST(DisplayCheckEdge, ChosenWaylandNeedsItsSocket) {
  EXPECT_FALSE(displayAvailable(env("wayland", ":0", ""), opens));
  EXPECT_TRUE(displayAvailable(env("wayland-egl", "", "w"), refuses));
}

TEST(DisplayCheckEdge, FallbackListUsesTheFirstThatWorks) {
  EXPECT_TRUE(displayAvailable(env("xcb;offscreen", "", ""), refuses));
  EXPECT_FALSE(displayAvailable(env("wayland;xcb", ":0", ""), refuses));
  EXPECT_TRUE(displayAvailable(env("wayland;xcb", ":0", ""), opens));
}

TEST(DisplayCheck, ReachableX11ServerIsADisplay) {
  EXPECT_TRUE(displayAvailable(env("", ":0", ""), opens));
}

TEST(DisplayCheck, NoDisplayMessageIsOneLine) {
  EXPECT_EQ(std::string(kNoDisplayMessage).find('\n'), std::string::npos);
}

TEST(PlatformRequest, X11IsAskedForWheneverAServerIsNamed) {
  EXPECT_EQ(platformToRequest(env("", ":0", "")), "xcb");
  EXPECT_EQ(platformToRequest(env("", ":0", "wayland-0")), "xcb");
}

TEST(PlatformRequestEdge, UsersChoiceIsLeftAlone) {
  EXPECT_EQ(platformToRequest(env("wayland", ":0", "")), std::nullopt);
}

TEST(PlatformRequestEdge, WaylandWithoutX11IsLeftToQt) {
  EXPECT_EQ(platformToRequest(env("", "", "wayland-0")), std::nullopt);
  EXPECT_EQ(platformToRequest(env("", "", "")), std::nullopt);
}

}  // namespace
}  // namespace brimly
