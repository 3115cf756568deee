#include "desktop/HoverNotice.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

const HoverRouteChoice kX11{HoverRoute::x11RawMotion, "an X11 session"};
const HoverRouteChoice kHotZone{HoverRoute::xwaylandHotZone,
                                "a Wayland session whose compositor offers no layer shell"};
const HoverRouteChoice kLayerShell{HoverRoute::layerShell,
                                   "the Wayland compositor offers zwlr_layer_shell_v1"};

// --- Edge cases ---

TEST(HoverNoticeEdge, AHeadlessPlatformSaysNothing) {
  EXPECT_EQ(hoverNotice(HoverRouteChoice{HoverRoute::none, ""}, PointerWatch::watching),
            std::nullopt);
}

TEST(HoverNoticeEdge, NoRouteSaysHoverIsOffAndWhy) {
  EXPECT_EQ(
      hoverNotice(HoverRouteChoice{HoverRoute::none, "Qt runs on Wayland"}, PointerWatch::watching),
      "Brimly: hovering will not open the panel (Qt runs on Wayland); keeping it pinned "
      "open still works.");
}

TEST(HoverNoticeEdge, AWatchThatCouldNotStartSaysWhatIsMissingInsteadOfTheRoute) {
  const auto noXInput = hoverNotice(kX11, PointerWatch::noXInput2);
  ASSERT_TRUE(noXInput);
  EXPECT_NE(noXInput->find("will not open the panel (the X server lacks XInput 2)"),
            std::string::npos);
  const auto noShape = hoverNotice(kHotZone, PointerWatch::noShape);
  ASSERT_TRUE(noShape);
  EXPECT_NE(noShape->find("SHAPE"), std::string::npos);
  EXPECT_EQ(noShape->find("hot zone"), std::string::npos);
}

// --- Properties ---

TEST(HoverNotice, AWorkingRouteIsNamedWithItsReason) {
  EXPECT_EQ(hoverNotice(kX11, PointerWatch::watching),
            "Brimly: hover through X11 raw pointer motion (an X11 session).");
  EXPECT_EQ(hoverNotice(kLayerShell, PointerWatch::watching),
            "Brimly: hover through the Wayland layer shell (the Wayland compositor offers "
            "zwlr_layer_shell_v1).");
}

TEST(HoverNotice, TheHotZoneSaysThatItTakesClicks) {
  const auto notice = hoverNotice(kHotZone, PointerWatch::watching);
  ASSERT_TRUE(notice);
  EXPECT_NE(notice->find("XWayland hot zone"), std::string::npos);
  EXPECT_NE(notice->find("takes the clicks"), std::string::npos);
  EXPECT_NE(notice->find("no layer shell"), std::string::npos);
}

TEST(HoverNotice, EveryNoticeIsOneLineNamingBrimly) {
  for (const HoverRouteChoice& choice :
       {kX11, kHotZone, kLayerShell, HoverRouteChoice{HoverRoute::none, "why"}}) {
    for (PointerWatch watch : {PointerWatch::watching, PointerWatch::noDisplay,
                               PointerWatch::noXInput2, PointerWatch::noShape}) {
      const auto notice = hoverNotice(choice, watch);
      ASSERT_TRUE(notice.has_value());
      EXPECT_EQ(notice->rfind("Brimly: ", 0), 0u);
      EXPECT_EQ(notice->find('\n'), std::string::npos);
    }
  }
}

}  // namespace
}  // namespace brimly
