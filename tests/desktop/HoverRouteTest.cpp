#include "desktop/HoverRoute.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

HoverRouteChoice choose(const char* platform, bool waylandSession, bool layerShell) {
  return chooseHoverRoute({platform, waylandSession, layerShell});
}

// --- Edge cases ---

TEST(HoverRouteEdge, AHeadlessPlatformFollowsNothingAndSaysNothing) {
  EXPECT_EQ(choose("offscreen", true, true), (HoverRouteChoice{HoverRoute::none, std::nullopt}));
  EXPECT_EQ(choose("minimal", false, false).route, HoverRoute::none);
  EXPECT_EQ(choose("vnc", false, false).notice, std::nullopt);
}

TEST(HoverRouteEdge, WaylandWithoutALayerShellOrX11LeavesTheWordToTheDesktop) {
  EXPECT_EQ(choose("wayland", true, false), (HoverRouteChoice{HoverRoute::none, std::nullopt}));
}

// --- Properties ---

TEST(HoverRoute, TheLayerShellWinsWhateverQtRunsOn) {
  for (const char* platform : {"wayland", "wayland-egl", "xcb"}) {
    const HoverRouteChoice choice = choose(platform, true, true);
    EXPECT_EQ(choice.route, HoverRoute::layerShell) << platform;
    ASSERT_TRUE(choice.notice) << platform;
    EXPECT_NE(choice.notice->find("zwlr_layer_shell_v1"), std::string::npos);
  }
}

TEST(HoverRoute, X11FollowsThePointerAndSaysWhetherXWaylandIsBetween) {
  const HoverRouteChoice x11 = choose("xcb", false, false);
  EXPECT_EQ(x11.route, HoverRoute::x11RawMotion);
  EXPECT_EQ(x11.notice, "Brimly: hover through X11 pointer motion (an X11 session)");
  const HoverRouteChoice xwayland = choose("xcb", true, false);
  EXPECT_EQ(xwayland.route, HoverRoute::x11RawMotion);
  ASSERT_TRUE(xwayland.notice);
  EXPECT_NE(xwayland.notice->find("XWayland"), std::string::npos);
  EXPECT_NE(xwayland.notice->find("no layer shell"), std::string::npos);
}

TEST(HoverRoute, EveryNoticeIsOneLineThatNamesBrimly) {
  for (const HoverRouteChoice& choice :
       {choose("xcb", false, false), choose("xcb", true, false), choose("wayland", true, true)}) {
    ASSERT_TRUE(choice.notice);
    EXPECT_EQ(choice.notice->rfind("Brimly: ", 0), 0u);
    EXPECT_EQ(choice.notice->find('\n'), std::string::npos);
  }
}

}  // namespace
}  // namespace brimly
