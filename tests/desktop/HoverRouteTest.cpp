#include "desktop/HoverRoute.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

HoverRouteFacts facts(const char* qtPlatform, WaylandAnswer wayland, const char* sessionType = "",
                      bool layerShellPanel = true) {
  return HoverRouteFacts{qtPlatform, sessionType, wayland, layerShellPanel};
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
  const HoverRouteChoice choice = chooseHoverRoute(facts("wayland", WaylandAnswer::plain));
  EXPECT_EQ(choice.route, HoverRoute::none);
  EXPECT_NE(choice.reason.find("no layer shell"), std::string::npos) << choice.reason;
}

TEST(HoverRouteEdge, ALayerShellThisBuildCannotDrawOnIsNotChosen) {
  const HoverRouteFacts offered = facts("xcb", WaylandAnswer::layerShell, "wayland", false);
  // Not the hot zone either: KWin, which offers the layer shell, loses X Leave events.
  EXPECT_EQ(route(offered), HoverRoute::x11RawMotion);
  EXPECT_NE(chooseHoverRoute(offered).reason.find("cannot draw"), std::string::npos);
  EXPECT_EQ(route(facts("wayland", WaylandAnswer::layerShell, "wayland", false)), HoverRoute::none);
}

TEST(HoverRouteEdge, ASessionThatSaysWaylandWithoutAnAnsweringCompositorTakesTheHotZone) {
  // A sandbox that lets Brimly reach XWayland only: raw motion would see no Wayland window.
  EXPECT_EQ(route(facts("xcb", WaylandAnswer::silent, "wayland")), HoverRoute::xwaylandHotZone);
}

// --- Properties ---

TEST(HoverRoute, TheLayerShellWinsWhateverQtRunsOn) {
  for (const char* platform : {"wayland", "wayland-egl", "xcb"}) {
    const HoverRouteChoice choice = chooseHoverRoute(facts(platform, WaylandAnswer::layerShell));
    EXPECT_EQ(choice.route, HoverRoute::layerShell) << platform;
    EXPECT_NE(choice.reason.find("zwlr_layer_shell_v1"), std::string::npos);
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

TEST(HoverRoute, EveryDesktopRouteSaysWhy) {
  for (WaylandAnswer wayland :
       {WaylandAnswer::silent, WaylandAnswer::plain, WaylandAnswer::layerShell}) {
    for (const char* platform : {"xcb", "wayland"}) {
      for (bool panel : {true, false}) {
        const HoverRouteChoice choice = chooseHoverRoute(facts(platform, wayland, "", panel));
        EXPECT_FALSE(choice.reason.empty()) << platform;
        EXPECT_EQ(choice.reason.find('\n'), std::string::npos);
      }
    }
  }
}

}  // namespace
}  // namespace brimly
