#include "desktop/HoverRoute.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

HoverRouteFacts facts(const char* qtPlatform, WaylandAnswer wayland, const char* sessionType = "") {
  return HoverRouteFacts{qtPlatform, sessionType, wayland};
}

HoverRoute route(const HoverRouteFacts& facts) {
  return chooseHoverRoute(facts).route;
}

// --- Edge cases ---

TEST(HoverRouteEdge, AHeadlessPlatformFollowsNothingAndSaysNothing) {
  for (const char* platform : {"offscreen", "minimal", "vnc", ""}) {
    EXPECT_EQ(chooseHoverRoute(facts(platform, WaylandAnswer::layerShell, "wayland")),
              (HoverRouteChoice{HoverRoute::none, ""}))
        << platform;
  }
}

TEST(HoverRouteEdge, QtOnWaylandWithoutALayerShellFollowsNothingAndSaysWhy) {
  for (WaylandAnswer wayland : {WaylandAnswer::plain, WaylandAnswer::silent}) {
    const HoverRouteChoice choice = chooseHoverRoute(facts("wayland", wayland, "wayland"));
    EXPECT_EQ(choice.route, HoverRoute::none);
    EXPECT_NE(choice.reason.find("no layer shell"), std::string::npos) << choice.reason;
  }
}

TEST(HoverRouteEdge, ASessionThatSaysWaylandWithoutAnAnsweringCompositorTakesTheHotZone) {
  // A sandbox that lets Brimly reach XWayland only: raw motion would see no Wayland window.
  const HoverRouteChoice choice = chooseHoverRoute(facts("xcb", WaylandAnswer::silent, "wayland"));
  EXPECT_EQ(choice.route, HoverRoute::xwaylandHotZone);
  EXPECT_NE(choice.reason.find("cannot reach"), std::string::npos) << choice.reason;
}

// --- Properties ---

TEST(HoverRoute, TheLayerShellWinsWhateverQtRunsOn) {
  // sway without XWayland runs Qt on Wayland; KWin starts Brimly with DISPLAY set, on X11.
  for (const char* platform : {"wayland", "wayland-egl", "xcb"}) {
    for (const char* sessionType : {"wayland", ""}) {
      const HoverRouteChoice choice =
          chooseHoverRoute(facts(platform, WaylandAnswer::layerShell, sessionType));
      EXPECT_EQ(choice.route, HoverRoute::layerShell) << platform;
      EXPECT_NE(choice.reason.find("zwlr_layer_shell_v1"), std::string::npos);
    }
  }
}

TEST(HoverRoute, AWaylandCompositorWithoutALayerShellGetsTheHotZone) {
  // GNOME: whatever the session variables say, the compositor answered.
  for (const char* sessionType : {"wayland", "x11", ""}) {
    const HoverRouteChoice choice =
        chooseHoverRoute(facts("xcb", WaylandAnswer::plain, sessionType));
    EXPECT_EQ(choice.route, HoverRoute::xwaylandHotZone) << sessionType;
    EXPECT_NE(choice.reason.find("no layer shell"), std::string::npos);
  }
}

TEST(HoverRoute, AnX11SessionKeepsRawMotion) {
  EXPECT_EQ(chooseHoverRoute(facts("xcb", WaylandAnswer::silent, "x11")),
            (HoverRouteChoice{HoverRoute::x11RawMotion, "an X11 session"}));
  EXPECT_EQ(route(facts("xcb", WaylandAnswer::silent, "")), HoverRoute::x11RawMotion);
  EXPECT_EQ(route(facts("xcb", WaylandAnswer::silent, "tty")), HoverRoute::x11RawMotion);
}

TEST(HoverRoute, EveryDesktopRouteSaysWhyInOneLine) {
  for (WaylandAnswer wayland :
       {WaylandAnswer::silent, WaylandAnswer::plain, WaylandAnswer::layerShell}) {
    for (const char* platform : {"xcb", "wayland"}) {
      for (const char* sessionType : {"wayland", "x11", ""}) {
        const HoverRouteChoice choice = chooseHoverRoute(facts(platform, wayland, sessionType));
        EXPECT_FALSE(choice.reason.empty()) << platform << " " << sessionType;
        EXPECT_EQ(choice.reason.find('\n'), std::string::npos);
      }
    }
  }
}

}  // namespace
}  // namespace brimly
