#include "desktop/HoverNotice.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(HoverNotice, WorkingWatchOnAnX11SessionSaysNothing) {
  EXPECT_EQ(hoverNotice(PointerWatch::watching, false), std::nullopt);
}

TEST(HoverNoticeEdge, NativeWaylandSaysHoverIsOff) {
  const auto notice = hoverNotice(PointerWatch::notX11, true);
  ASSERT_TRUE(notice.has_value());
  EXPECT_NE(notice->find("Wayland"), std::string::npos);
}

TEST(HoverNoticeEdge, MissingXInputSaysSo) {
  const auto notice = hoverNotice(PointerWatch::noXInput2, false);
  ASSERT_TRUE(notice.has_value());
  EXPECT_NE(notice->find("XInput 2"), std::string::npos);
}

TEST(HoverNoticeEdge, XWaylandWarnsThatHoverMayFail) {
  const auto notice = hoverNotice(PointerWatch::watching, true);
  ASSERT_TRUE(notice.has_value());
  EXPECT_NE(notice->find("XWayland"), std::string::npos);
}

TEST(HoverNotice, EveryNoticeIsOneLineNamingBrimly) {
  for (PointerWatch watch : {PointerWatch::notX11, PointerWatch::noDisplay, PointerWatch::noXInput2,
                             PointerWatch::watching}) {
    const auto notice = hoverNotice(watch, true);
    ASSERT_TRUE(notice.has_value());
    EXPECT_EQ(notice->rfind("Brimly: ", 0), 0u);
    EXPECT_EQ(notice->find('\n'), std::string::npos);
  }
}

}  // namespace
}  // namespace brimly
