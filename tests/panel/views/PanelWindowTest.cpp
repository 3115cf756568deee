#include "panel/views/PanelWindow.h"

#include <gtest/gtest.h>

#include "SolidGrid.h"
#include "panel/PanelState.h"
#include "panel/views/RootView.h"

namespace brimly {
namespace {

TEST(PanelWindow, IsAClickThroughOverlayThatNeverTakesFocus) {
  PanelState state;
  PanelWindow window(state, {185.0, 32.0}, true);
  const Qt::WindowFlags flags = window.windowFlags();
  EXPECT_TRUE(window.isWindow());
  EXPECT_TRUE(flags.testFlag(Qt::FramelessWindowHint));
  EXPECT_TRUE(flags.testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(flags.testFlag(Qt::WindowDoesNotAcceptFocus));
  EXPECT_TRUE(flags.testFlag(Qt::WindowTransparentForInput));
  EXPECT_EQ(window.windowType(), Qt::Tool);  // kept out of the task bar
  EXPECT_TRUE(window.testAttribute(Qt::WA_TranslucentBackground));
  EXPECT_TRUE(window.testAttribute(Qt::WA_ShowWithoutActivating));
  EXPECT_EQ(window.focusPolicy(), Qt::NoFocus);
}

TEST(PanelWindow, StaysShownWhileOtherApplicationsAreActive) {
  PanelState state;
  PanelWindow window(state, {185.0, 32.0}, true);
  EXPECT_TRUE(window.testAttribute(Qt::WA_MacAlwaysShowToolWindow));
}

TEST(PanelWindow, Is600WideAndNotchHeightPlus116High) {
  PanelState state;
  PanelWindow window(state, {185.0, 32.0}, true);
  EXPECT_EQ(window.size(), QSize(600, 148));
  EXPECT_EQ(PanelWindow::panelSize({185.0, 38.0}), (Size{600.0, 154.0}));
  ASSERT_NE(window.rootView(), nullptr);
  EXPECT_EQ(window.rootView()->geometry(), QRect(0, 0, 600, 148));
  EXPECT_EQ(window.rootView()->metrics(), RootViewMetrics::forNotch({185.0, 32.0}, true));
}

TEST(PanelWindow, DoesNotShowItself) {
  PanelState state;
  PanelWindow window(state, {185.0, 32.0}, true);
  EXPECT_FALSE(window.isVisible());
}

TEST(PanelWindow, TakesItsFrameInTopLeftCoordinates) {
  PanelState state;
  PanelWindow window(state, {185.0, 32.0}, true);
  window.setFrame({660.0, 0.0, 600.0, 148.0});
  EXPECT_EQ(window.geometry(), QRect(660, 0, 600, 148));
  EXPECT_EQ(window.rootView()->geometry(), QRect(0, 0, 600, 148));
}

TEST(PanelWindow, RebuildsTheRootViewForANewNotchWithAFreshGrid) {
  PanelState state;
  int grids = 0;
  PanelWindow window(state, {185.0, 32.0}, true, [&grids]() -> QWidget* {
    ++grids;
    return new SolidGrid();
  });
  ASSERT_EQ(grids, 1);
  QPointer<RootView> first = window.rootView();
  window.rebuildRootView({200.0, 38.0}, true);
  EXPECT_EQ(grids, 2);
  EXPECT_TRUE(first.isNull());
  ASSERT_NE(window.rootView(), nullptr);
  EXPECT_EQ(window.rootView()->metrics(), RootViewMetrics::forNotch({200.0, 38.0}, true));
  EXPECT_NE(window.rootView()->grid(), nullptr);
  // The frame follows only when the application sets it.
  EXPECT_EQ(window.size(), QSize(600, 148));
  window.setFrame({0.0, 0.0, 600.0, 154.0});
  EXPECT_EQ(window.rootView()->size(), QSize(600, 154));
}

TEST(PanelWindow, TellsItsRootViewsWhetherTheScreenHasANotch) {
  PanelState state;
  PanelWindow window(state, {200.0, 32.0}, false);
  EXPECT_FALSE(window.rootView()->metrics().hasNotch);
  window.rebuildRootView({185.0, 32.0}, true);
  EXPECT_TRUE(window.rootView()->metrics().hasNotch);
  window.rebuildRootView({200.0, 32.0}, false);
  EXPECT_FALSE(window.rootView()->metrics().hasNotch);
}

TEST(PanelWindow, NewRootViewObservesTheSamePanelState) {
  PanelState state;
  PanelWindow window(state, {185.0, 32.0}, true);
  window.rebuildRootView({200.0, 32.0}, true);
  EXPECT_FALSE(window.rootView()->isAnimating());
  state.setOpen(true);
  EXPECT_TRUE(window.rootView()->isAnimating());
}

TEST(PanelWindow, ALargerPanelIsAQuarterLargerBelowTheNotch) {
  PanelState state;
  PanelWindow window(state, {185.0, 32.0}, true, {}, 1.25);
  EXPECT_EQ(window.size(), QSize(750, 177));
  EXPECT_EQ(PanelWindow::panelSize({185.0, 38.0}, 1.25), (Size{750.0, 183.0}));
  EXPECT_EQ(window.rootView()->metrics(), RootViewMetrics::forNotch({185.0, 32.0}, true, 1.25));
  // Back to the usual size, as when the setting changes; the frame follows with `setFrame`.
  window.rebuildRootView({185.0, 32.0}, true, 1.0);
  EXPECT_EQ(window.rootView()->metrics(), RootViewMetrics::forNotch({185.0, 32.0}, true));
  window.setFrame({0.0, 0.0, 600.0, 148.0});
  EXPECT_EQ(window.rootView()->size(), QSize(600, 148));
}

}  // namespace
}  // namespace brimly
