#include "panel/NotchGeometry.h"

#include <gtest/gtest.h>

#include <limits>

#include "FakeScreenPort.h"

namespace brimly {
namespace {

using testing::FakeScreenPort;

// A built-in display with a camera housing: the two menu-bar strips leave a gap of `gap` points
// centred on the screen.
ScreenDescription notchedScreen(Rect frame, double inset, double gap) {
  ScreenDescription screen;
  screen.frame = frame;
  screen.safeAreaInsets.top = inset;
  const double leftEnd = frame.midX() - gap / 2;
  const double rightStart = frame.midX() + gap / 2;
  screen.auxiliaryTopLeftArea = Rect{frame.x, frame.maxY() - inset, leftEnd - frame.x, inset};
  screen.auxiliaryTopRightArea =
      Rect{rightStart, frame.maxY() - inset, frame.maxX() - rightStart, inset};
  return screen;
}

ScreenDescription plainScreen(Rect frame) {
  ScreenDescription screen;
  screen.frame = frame;
  return screen;
}

// --- Edge cases ---

TEST(NotchGeometry, GapOf185AndAHalfIsTheWidth) {
  const auto screen = notchedScreen({0, 0, 1512, 982}, 32, 185.5);
  EXPECT_EQ(NotchGeometry::measureNotch(screen, 24).width, 185.5);
}

TEST(NotchGeometry, GapOfExactly100IsNotCredible) {
  const auto screen = notchedScreen({0, 0, 1512, 982}, 32, 100);
  EXPECT_EQ(NotchGeometry::measureNotch(screen, 24).width, 200);
}

TEST(NotchGeometry, GapJustAbove100IsTheWidth) {
  const auto screen = notchedScreen({0, 0, 1512, 982}, 32, 100.5);
  EXPECT_EQ(NotchGeometry::measureNotch(screen, 24).width, 100.5);
}

TEST(NotchGeometry, NegativeGapFallsBackTo200) {
  auto screen = notchedScreen({0, 0, 1512, 982}, 32, 185);
  screen.auxiliaryTopRightArea->x = screen.auxiliaryTopLeftArea->maxX() - 40;
  EXPECT_EQ(NotchGeometry::measureNotch(screen, 24).width, 200);
}

TEST(NotchGeometry, EitherStripMissingFallsBackTo200) {
  auto leftOnly = notchedScreen({0, 0, 1512, 982}, 32, 185);
  leftOnly.auxiliaryTopRightArea.reset();
  auto rightOnly = notchedScreen({0, 0, 1512, 982}, 32, 185);
  rightOnly.auxiliaryTopLeftArea.reset();
  EXPECT_EQ(NotchGeometry::measureNotch(leftOnly, 24).width, 200);
  EXPECT_EQ(NotchGeometry::measureNotch(rightOnly, 24).width, 200);
}

TEST(NotchGeometry, TopInsetWinsOverAThinnerMenuBar) {
  const auto screen = notchedScreen({0, 0, 1512, 982}, 38, 185);
  EXPECT_EQ(NotchGeometry::measureNotch(screen, 24).height, 38);
}

TEST(NotchGeometry, ScreenWithoutInsetTakesTheMenuBarThickness) {
  EXPECT_EQ(NotchGeometry::measureNotch(plainScreen({0, 0, 1920, 1080}), 24), (Size{200, 24}));
}

TEST(NotchGeometry, ThickerMenuBarWinsOverTheInset) {
  const auto screen = notchedScreen({0, 0, 1512, 982}, 32, 185);
  EXPECT_EQ(NotchGeometry::measureNotch(screen, 37).height, 37);
}

TEST(NotchGeometry, DesktopWithoutTopBarHangsFromA32PointNotch) {
  EXPECT_EQ(NotchGeometry::measureNotch(plainScreen({0, 0, 1920, 1080}), 0), (Size{200, 32}));
}

TEST(NotchGeometry, UnusableReportedLengthsNeverLeakIntoTheSize) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double inf = std::numeric_limits<double>::infinity();
  auto screen = plainScreen({0, 0, 1920, 1080});
  screen.safeAreaInsets.top = nan;
  EXPECT_EQ(NotchGeometry::measureNotch(screen, nan), (Size{200, 32}));
  EXPECT_EQ(NotchGeometry::measureNotch(screen, 27), (Size{200, 27}));
  screen.safeAreaInsets.top = inf;
  EXPECT_EQ(NotchGeometry::measureNotch(screen, -5), (Size{200, 32}));
  auto strips = notchedScreen({0, 0, 1512, 982}, 32, 185);
  strips.auxiliaryTopRightArea->x = nan;
  EXPECT_EQ(NotchGeometry::measureNotch(strips, 24).width, 200);
  strips.auxiliaryTopRightArea->x = inf;
  EXPECT_EQ(NotchGeometry::measureNotch(strips, 24).width, 200);
}

TEST(NotchGeometry, NotchScreenListedSecondIsChosenOverTheMainScreen) {
  const auto external = plainScreen({0, 0, 2560, 1440});
  const auto builtIn = notchedScreen({-1512, 0, 1512, 982}, 32, 185);
  const auto chosen = NotchGeometry::notchScreen({external, builtIn}, external);
  ASSERT_TRUE(chosen.has_value());
  EXPECT_EQ(*chosen, builtIn);
}

TEST(NotchGeometry, FirstOfSeveralNotchScreensIsChosen) {
  const auto first = notchedScreen({0, 0, 1512, 982}, 32, 185);
  const auto second = notchedScreen({1512, 0, 1728, 1117}, 38, 185);
  EXPECT_EQ(NotchGeometry::notchScreen({first, second}, std::nullopt), first);
}

TEST(NotchGeometry, WithoutANotchScreenTheMainScreenIsChosen) {
  const auto a = plainScreen({0, 0, 1920, 1080});
  const auto b = plainScreen({1920, 0, 1920, 1080});
  EXPECT_EQ(NotchGeometry::notchScreen({a, b}, b), b);
}

TEST(NotchGeometry, NoScreenAtAllChoosesNone) {
  EXPECT_FALSE(NotchGeometry::notchScreen({}, std::nullopt).has_value());
  EXPECT_FALSE(
      NotchGeometry::notchScreen({plainScreen({0, 0, 800, 600})}, std::nullopt).has_value());
}

TEST(NotchGeometry, OnlyAScreenWithATopInsetHasACameraHousing) {
  EXPECT_TRUE(notchedScreen({0, 0, 1512, 982}, 32, 185).hasCameraHousing());
  EXPECT_FALSE(plainScreen({0, 0, 1512, 982}).hasCameraHousing());
  ScreenDescription unusable = plainScreen({0, 0, 1512, 982});
  unusable.safeAreaInsets.top = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(unusable.hasCameraHousing());
}

TEST(NotchGeometry, NoScreenKeepsThePreviousNotchSize) {
  EXPECT_EQ(NotchGeometry::recomputeNotch(std::nullopt, 24, {185, 32}), (Size{185, 32}));
  EXPECT_EQ(NotchGeometry::recomputeNotch(std::nullopt, 24, NotchGeometry::initialNotchSize),
            (Size{200, 32}));
}

TEST(NotchGeometry, ScreenChangeMovesThePanelToTheNewNotchScreen) {
  FakeScreenPort desktop;
  desktop.thickness = 24;
  desktop.screenList = {notchedScreen({0, 0, 1512, 982}, 32, 185)};
  const auto before = NotchGeometry::place(desktop, NotchGeometry::initialNotchSize);
  EXPECT_EQ(before.panelFrame, (Rect{456, 834, 600, 148}));
  EXPECT_TRUE(before.hasNotch);

  desktop.screenList = {plainScreen({-1920, 200, 1920, 1080}),
                        notchedScreen({0, 0, 1728, 1117}, 38, 190)};
  const auto after = NotchGeometry::place(desktop, before.notchSize);
  EXPECT_EQ(after.notchSize, (Size{190, 38}));
  ASSERT_TRUE(after.panelFrame.has_value());
  EXPECT_EQ(after.panelFrame->x, 864 - 300);
  EXPECT_EQ(after.panelFrame->y, 1117 - (38 + 116));
  EXPECT_EQ(after.panelFrame->width, 600);
  EXPECT_EQ(after.panelFrame->height, 38 + 116);
}

TEST(NotchGeometry, ShownTriggerWidthDoesNotDependOnTheNotch) {
  const auto narrow = NotchGeometry::trackerGeometry(std::nullopt, {120, 32});
  const auto wide = NotchGeometry::trackerGeometry(std::nullopt, {230, 38});
  EXPECT_EQ(narrow.triggerWidthShown, 616);
  EXPECT_EQ(wide.triggerWidthShown, 616);
  EXPECT_EQ(narrow.triggerWidthHidden, 140);
  EXPECT_EQ(wide.triggerWidthHidden, 250);
}

// --- Properties ---

TEST(NotchGeometry, ConstantsAreTheDeliberateValues) {
  EXPECT_EQ(NotchGeometry::expandedWidth, 600);
  EXPECT_EQ(NotchGeometry::halfWidth, 300);
  EXPECT_EQ(NotchGeometry::halfWidth * 2, NotchGeometry::expandedWidth);
  EXPECT_EQ(NotchGeometry::contentHeight, 116);
  EXPECT_EQ(NotchGeometry::fallbackNotchWidth, 200);
  EXPECT_EQ(NotchGeometry::minimumCredibleGap, 100);
  EXPECT_EQ(NotchGeometry::hiddenTriggerExtraWidth, 20);
  EXPECT_EQ(NotchGeometry::shownTriggerWidth, 616);
  EXPECT_EQ(NotchGeometry::shownTriggerExtraHeight, 14);
  EXPECT_EQ(NotchGeometry::initialNotchSize, (Size{200, 32}));
}

TEST(NotchGeometry, PanelHangsCentredFromTheScreenTop) {
  // 14-inch built-in display, notch 185 × 32.
  EXPECT_EQ(NotchGeometry::panelFrame({0, 0, 1512, 982}, {185, 32}), (Rect{456, 834, 600, 148}));
  // A screen that does not start at the origin.
  const Rect frame{-1728, 300, 1728, 1117};
  const Rect panel = NotchGeometry::panelFrame(frame, {185, 38});
  EXPECT_EQ(panel.midX(), frame.midX());
  EXPECT_EQ(panel.maxY(), frame.maxY());
  EXPECT_EQ(panel, (Rect{-1164, 1417 - 154, 600, 154}));
}

TEST(NotchGeometry, TrackerGeometryFollowsTheNotch) {
  const Rect frame{0, 0, 1512, 982};
  EXPECT_EQ(NotchGeometry::trackerGeometry(frame, {185, 32}),
            (TrackerGeometry{.screenFrame = frame,
                             .triggerWidthHidden = 205,
                             .triggerWidthShown = 616,
                             .triggerHeightHidden = 32,
                             .triggerHeightShown = 162}));
}

TEST(NotchGeometry, PlacementWithoutScreensKeepsSizeAndFrameAndLetsTheTrackerSearch) {
  FakeScreenPort desktop;
  desktop.thickness = 24;
  const auto placement = NotchGeometry::place(desktop, {185, 32});
  EXPECT_FALSE(placement.screen.has_value());
  EXPECT_EQ(placement.notchSize, (Size{185, 32}));
  EXPECT_FALSE(placement.panelFrame.has_value());
  EXPECT_FALSE(placement.hasNotch);
  EXPECT_FALSE(placement.tracker.screenFrame.has_value());
  EXPECT_EQ(placement.tracker.triggerWidthHidden, 205);
  EXPECT_EQ(placement.tracker.triggerHeightShown, 162);
}

TEST(NotchGeometry, PlacementOnAnExternalMainScreenUsesTheMenuBarAndFallbackWidth) {
  FakeScreenPort desktop;
  desktop.thickness = 25;
  desktop.screenList = {plainScreen({0, 0, 2560, 1440})};
  desktop.main = desktop.screenList.front();
  const auto placement = NotchGeometry::place(desktop, {185, 32});
  EXPECT_EQ(placement.notchSize, (Size{200, 25}));
  EXPECT_EQ(placement.panelFrame, (Rect{980, 1440 - 141, 600, 141}));
  EXPECT_EQ(placement.tracker.screenFrame, (Rect{0, 0, 2560, 1440}));
  EXPECT_FALSE(placement.hasNotch);  // the size is made up: nothing hides the closed card
}

// --- A larger panel ---

TEST(LargerNotchGeometry, ThePanelIsAQuarterLargerBelowTheNotchAndCentredOnIt) {
  // 14-inch built-in display, notch 185 × 32, centred on the screen.
  const Rect screen{0, 0, 1512, 982};
  const Rect panel = NotchGeometry::panelFrame(screen, {185, 32}, 1.25);
  EXPECT_EQ(panel, (Rect{381, 982 - 177, 750, 177}));
  EXPECT_EQ(panel.midX(), screen.midX());
  EXPECT_EQ(panel.maxY(), screen.maxY());
  const Rect elsewhere{-1728, 300, 1728, 1117};
  EXPECT_EQ(NotchGeometry::panelFrame(elsewhere, {185, 38}, 1.25).midX(), elsewhere.midX());
}

TEST(LargerNotchGeometry, TheShownTriggerCoversTheLargerCardAndTheHiddenOneTheNotch) {
  const Rect frame{0, 0, 1512, 982};
  EXPECT_EQ(NotchGeometry::trackerGeometry(frame, {185, 32}, 1.25),
            (TrackerGeometry{.screenFrame = frame,
                             .triggerWidthHidden = 205,
                             .triggerWidthShown = 770,
                             .triggerHeightHidden = 32,
                             .triggerHeightShown = 32 + 162.5}));
}

TEST(LargerNotchGeometry, PlacementCarriesTheScaleToPanelAndTracker) {
  FakeScreenPort desktop;
  desktop.screenList = {notchedScreen({0, 0, 1512, 982}, 32, 185)};
  desktop.main = desktop.screenList.front();
  const auto placement = NotchGeometry::place(desktop, {200, 32}, 1.25);
  EXPECT_EQ(placement.notchSize, (Size{185, 32}));
  EXPECT_EQ(placement.panelFrame, (Rect{381, 805, 750, 177}));
  EXPECT_EQ(placement.tracker,
            NotchGeometry::trackerGeometry(Rect{0, 0, 1512, 982}, {185, 32}, 1.25));
}

}  // namespace
}  // namespace brimly
