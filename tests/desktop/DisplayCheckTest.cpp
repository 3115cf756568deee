#include "desktop/DisplayCheck.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

// A named Wayland socket has a compositor answering on it, without a layer shell.
DisplayEnvironment env(const char* qpaPlatform, const char* display, const char* waylandDisplay) {
  return DisplayEnvironment{qpaPlatform,
                            display,
                            waylandDisplay,
                            "",
                            "",
                            std::nullopt,
                            std::nullopt,
                            *waylandDisplay != '\0' ? WaylandAnswer::plain : WaylandAnswer::silent};
}

DisplayEnvironment waylandSession(const char* display) {
  DisplayEnvironment environment = env("", display, "wayland-0");
  environment.sessionType = "wayland";
  environment.sessionDesktop = "KDE:plasma";
  return environment;
}

// The platform plugins of a Debian 12 machine with qt6-base only, and with qt6-wayland too.
const std::vector<std::string> kDebianPlugins = {
    "eglfs", "linuxfb", "minimal", "minimalegl", "offscreen", "vkkhrdisplay", "vnc", "xcb"};
const std::vector<std::string> kWithWayland = {"offscreen", "wayland", "wayland-egl", "xcb"};

const auto opens = [](const std::string&) { return true; };
const auto refuses = [](const std::string&) { return false; };

bool starts(const DisplayEnvironment& environment,
            const std::function<bool(const std::string&)>& x11Opens,
            const std::vector<std::string>& installed = kDebianPlugins) {
  return !startupProblem(environment, installed, x11Opens).has_value();
}

std::string problem(const DisplayEnvironment& environment,
                    const std::function<bool(const std::string&)>& x11Opens,
                    const std::vector<std::string>& installed = kDebianPlugins) {
  return startupProblem(environment, installed, x11Opens).value_or("");
}

bool oneLine(const std::string& text) {
  return !text.empty() && text.find('\n') == std::string::npos;
}

TEST(DisplayCheckEdge, NoVariablesAtAllMeansNoDisplay) {
  EXPECT_EQ(problem(env("", "", ""), opens), kNoDisplayMessage);
}

TEST(DisplayCheckEdge, DisplaySetButServerUnreachableMeansNoDisplay) {
  EXPECT_EQ(problem(env("", ":9", ""), refuses), kNoDisplayMessage);
}

TEST(DisplayCheckEdge, ServerIsNotAskedWhenNoDisplayIsNamed) {
  bool asked = false;
  EXPECT_FALSE(starts(env("", "", ""), [&](const std::string&) {
    asked = true;
    return true;
  }));
  EXPECT_FALSE(asked);
}

TEST(DisplayCheckEdge, UnknownPlatformInTheEnvironmentIsRefusedWithTheInstalledOnes) {
  const std::string line = problem(env("bogus", ":0", ""), opens);
  EXPECT_TRUE(oneLine(line));
  EXPECT_NE(line.find("\"bogus\""), std::string::npos) << line;
  EXPECT_NE(line.find("installed: eglfs, linuxfb, minimal, minimalegl, offscreen, vkkhrdisplay, "
                      "vnc, xcb"),
            std::string::npos)
      << line;
}

TEST(DisplayCheckEdge, UnknownPlatformOnTheCommandLineIsRefusedEvenWithAGoodEnvironment) {
  DisplayEnvironment environment = env("xcb", ":0", "");
  environment.platformArgument = "bogus";
  const std::string line = problem(environment, opens);
  EXPECT_TRUE(oneLine(line));
  EXPECT_NE(line.find("\"bogus\""), std::string::npos) << line;
}

TEST(DisplayCheckEdge, CommandLinePlatformOverridesABadEnvironment) {
  DisplayEnvironment environment = env("bogus", "", "");
  environment.platformArgument = "offscreen";
  EXPECT_TRUE(starts(environment, refuses));
}

TEST(DisplayCheckEdge, PlatformNamesAreMatchedWithoutRegardToCaseAndOptions) {
  EXPECT_TRUE(starts(env("OffScreen:size=800x600", "", ""), refuses));
  EXPECT_TRUE(starts(env("XCB", ":0", ""), opens));
}

TEST(DisplayCheckEdge, UnknownPlatformFollowedByAWorkingOneStarts) {
  EXPECT_TRUE(starts(env("bogus;xcb", ":0", ""), opens));
}

TEST(DisplayCheckEdge, EmptyPlatformListIsRefused) {
  EXPECT_TRUE(oneLine(problem(env(";", ":0", ""), opens)));
}

TEST(DisplayCheckEdge, ControlCharactersInANameDoNotBreakTheLine) {
  DisplayEnvironment environment = env("", ":0", "");
  environment.platformArgument = "bo\ngus";
  EXPECT_TRUE(oneLine(problem(environment, opens)));
}

TEST(DisplayCheckEdge, PluginsThatCannotBeListedAreTakenOnTrust) {
  EXPECT_TRUE(starts(env("vnc", "", ""), refuses, {}));
}

TEST(DisplayCheckEdge, DisplayArgumentIsTheServerAsked) {
  DisplayEnvironment environment = env("", ":0", "");
  environment.displayArgument = ":99";
  std::string asked;
  const std::optional<std::string> line =
      startupProblem(environment, kDebianPlugins, [&](const std::string& name) {
        asked = name;
        return false;
      });
  EXPECT_EQ(asked, ":99");
  ASSERT_TRUE(line.has_value());
  EXPECT_TRUE(oneLine(*line));
  EXPECT_NE(line->find("\":99\""), std::string::npos) << *line;
  EXPECT_NE(line->find("-display"), std::string::npos) << *line;
}

TEST(DisplayCheckEdge, DisplayArgumentWorksWithoutTheVariable) {
  DisplayEnvironment environment = env("", "", "");
  environment.displayArgument = ":5";
  EXPECT_TRUE(starts(environment, [](const std::string& name) { return name == ":5"; }));
}

TEST(DisplayCheckEdge, WaylandSessionWithoutXWaylandOrWaylandPluginIsRefused) {
  const std::string line = problem(waylandSession(""), opens);
  EXPECT_TRUE(oneLine(line));
  EXPECT_NE(line.find("Wayland"), std::string::npos) << line;
  EXPECT_NE(line.find("not installed"), std::string::npos) << line;
}

TEST(DisplayCheckEdge, WaylandSessionWithItsPluginStartsWithoutAskingX) {
  bool asked = false;
  EXPECT_TRUE(starts(
      waylandSession(""),
      [&](const std::string&) {
        asked = true;
        return false;
      },
      kWithWayland));
  EXPECT_FALSE(asked);
}

TEST(DisplayCheckEdge, WaylandSocketWithoutASessionTypeLeavesQtOnX11) {
  // Qt tries Wayland by itself only in a session that says it is one.
  const std::string line = problem(env("", "", "wayland-0"), opens, kWithWayland);
  EXPECT_TRUE(oneLine(line));
  EXPECT_NE(line.find("QT_QPA_PLATFORM=wayland"), std::string::npos) << line;
}

TEST(DisplayCheckEdge, AWaylandSocketNobodyServesIsSaidInOneLineWithOrWithoutThePlugin) {
  DisplayEnvironment environment = waylandSession("");
  environment.wayland = WaylandAnswer::silent;
  for (const std::vector<std::string>& installed : {kDebianPlugins, kWithWayland}) {
    const std::string line = problem(environment, refuses, installed);
    EXPECT_TRUE(oneLine(line));
    EXPECT_EQ(line,
              "Brimly: no Wayland compositor answers on \"wayland-0\" (WAYLAND_DISPLAY), and there "
              "is no X11 display; run \"brimly --audit\" for the readings as text.");
  }
}

TEST(DisplayCheckEdge, ChosenWaylandOnASocketNobodyServesDoesNotBlameX11) {
  DisplayEnvironment environment = waylandSession(":0");
  environment.qpaPlatform = "wayland";
  environment.wayland = WaylandAnswer::silent;
  const std::string line = problem(environment, opens, kWithWayland);
  EXPECT_TRUE(oneLine(line));
  EXPECT_NE(line.find("no Wayland compositor answers"), std::string::npos) << line;
  EXPECT_EQ(line.find("X11"), std::string::npos) << line;
}

TEST(DisplayCheckEdge, ASilentWaylandSocketBesideAWorkingX11ServerStartsOnX11) {
  DisplayEnvironment environment = waylandSession(":0");
  environment.wayland = WaylandAnswer::silent;
  EXPECT_TRUE(starts(environment, opens, kWithWayland));
}

TEST(DisplayCheckEdge, GnomeWaylandSessionLeavesQtOnX11) {
  DisplayEnvironment environment = waylandSession("");
  environment.sessionDesktop = "ubuntu:GNOME";
  EXPECT_FALSE(starts(environment, opens, kWithWayland));
}

TEST(DisplayCheckEdge, ChosenHeadlessPlatformNeedsNoDisplay) {
  EXPECT_TRUE(starts(env("offscreen", "", ""), refuses));
  EXPECT_TRUE(starts(env("vnc:size=800x600", "", ""), refuses));
}

TEST(DisplayCheckEdge, ChosenX11NeedsTheServer) {
  EXPECT_FALSE(starts(env("xcb", "", "wayland-0"), refuses));
  EXPECT_TRUE(starts(env("xcb", ":0", ""), opens));
}

TEST(DisplayCheckEdge, ChosenWaylandNeedsItsPluginAndItsSocket) {
  EXPECT_FALSE(starts(env("wayland", ":0", ""), opens, kWithWayland));
  EXPECT_TRUE(starts(env("wayland-egl", "", "w"), refuses, kWithWayland));
  EXPECT_NE(problem(env("wayland", ":0", "w"), opens).find("\"wayland\""), std::string::npos);
}

TEST(DisplayCheckEdge, FallbackListUsesTheFirstThatWorks) {
  EXPECT_TRUE(starts(env("xcb;offscreen", "", ""), refuses));
  EXPECT_FALSE(starts(env("wayland;xcb", ":0", ""), refuses, kWithWayland));
  EXPECT_TRUE(starts(env("wayland;xcb", ":0", ""), opens, kWithWayland));
}

TEST(DisplayCheck, ReachableX11ServerIsADisplay) {
  EXPECT_TRUE(starts(env("", ":0", ""), opens));
}

TEST(DisplayCheck, XWaylandIsUsedInAWaylandSession) {
  EXPECT_TRUE(starts(waylandSession(":1"), opens));
}

TEST(DisplayCheck, NoDisplayMessageIsOneLine) {
  EXPECT_EQ(std::string(kNoDisplayMessage).find('\n'), std::string::npos);
}

TEST(PlatformRequest, X11IsAskedForWheneverAServerIsNamed) {
  EXPECT_EQ(platformToRequest(env("", ":0", "")), "xcb");
  EXPECT_EQ(platformToRequest(env("", ":0", "wayland-0")), "xcb");
}

TEST(PlatformRequest, DisplayArgumentNamesAServerToo) {
  DisplayEnvironment environment = env("", "", "wayland-0");
  environment.displayArgument = ":3";
  EXPECT_EQ(platformToRequest(environment), "xcb");
  EXPECT_EQ(x11DisplayName(environment), ":3");
}

TEST(PlatformRequestEdge, UsersChoiceIsLeftAlone) {
  EXPECT_EQ(platformToRequest(env("wayland", ":0", "")), std::nullopt);
  DisplayEnvironment environment = env("", ":0", "");
  environment.platformArgument = "offscreen";
  EXPECT_EQ(platformToRequest(environment), std::nullopt);
}

TEST(PlatformRequestEdge, WaylandWithoutX11IsLeftToQt) {
  EXPECT_EQ(platformToRequest(env("", "", "wayland-0")), std::nullopt);
  EXPECT_EQ(platformToRequest(env("", "", "")), std::nullopt);
}

TEST(WaylandAnswerEdge, NoCompositorIsSilent) {
  EXPECT_EQ(waylandAnswer(std::nullopt), WaylandAnswer::silent);
}

TEST(WaylandAnswerEdge, ACompositorOfferingNothingStillAnswers) {
  EXPECT_EQ(waylandAnswer(std::vector<std::string>{}), WaylandAnswer::plain);
}

TEST(WaylandAnswer, OnlyTheWlrootsLayerShellCountsAsOne) {
  EXPECT_EQ(waylandAnswer(std::vector<std::string>{"wl_compositor", "xdg_wm_base", "wl_seat"}),
            WaylandAnswer::plain);
  EXPECT_EQ(waylandAnswer(std::vector<std::string>{"wl_compositor", "zwlr_layer_shell_v1"}),
            WaylandAnswer::layerShell);
  EXPECT_EQ(waylandAnswer(std::vector<std::string>{"zwlr_layer_shell_v2"}), WaylandAnswer::plain);
}

}  // namespace
}  // namespace brimly
