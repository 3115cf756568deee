#include "desktop/x11/PanelShapeMask.h"

#include <gtest/gtest.h>

#include "panel/PanelState.h"
#include "panel/views/PanelWindow.h"
#include "panel/views/RootView.h"

namespace brimly {
namespace {

// The panel for a 200 x 32 notch is 600 x 148; the closed card covers the notch at its top centre,
// where a camera housing hides it (`hasNotch`), or is not drawn at all.
template <bool hasNotch>
class PanelShapeMaskFixture : public ::testing::Test {
 protected:
  void SetUp() override { useManualClock(); }
  void useManualClock() {
    window_.rootView()->frameTimer().setClock([this] { return now_; });
  }
  // Lets the animation run to its end and delivers one frame.
  void settle() {
    now_ += 5.0;
    window_.rootView()->frameTimer().tick();
  }

  double now_ = 100.0;
  PanelState state_;
  PanelWindow window_{state_, Size{200, 32}, hasNotch};
};

using PanelShapeMaskTest = PanelShapeMaskFixture<true>;
using PanelShapeMaskWithoutNotchTest = PanelShapeMaskFixture<false>;

// Whether the window's shape, as Qt was given it, leaves any part of the window showing.
bool showsAnything(const QWidget& window) {
  return window.mask().isEmpty() || !window.mask().intersected(window.rect()).isEmpty();
}

TEST_F(PanelShapeMaskTest, PanelOpenedBeforeItsFirstFrameIsCutToTheOpenCard) {
  // A panel pinned at launch: shown, then opened before anything is drawn. The card jumps
  // straight to its open form, without a single animation frame.
  PanelShapeMask mask(window_);
  window_.show();
  state_.setOpen(true);
  EXPECT_FALSE(window_.rootView()->isAnimating());
  EXPECT_EQ(mask.region().boundingRect(), QRect(0, 0, 600, 148));
  EXPECT_EQ(window_.mask(), mask.region());
}

TEST_F(PanelShapeMaskTest, ResizedWindowIsCutAgain) {
  PanelShapeMask mask(window_);
  window_.rebuildRootView(Size{240, 40}, true);
  useManualClock();
  mask.follow();
  EXPECT_EQ(mask.region().boundingRect(), QRect(180, 0, 240, 40));
}

TEST_F(PanelShapeMaskTest, ALargerPanelIsCutToItsLargerCardWithLargerCorners) {
  PanelShapeMask mask(window_);
  window_.setFrame({0, 0, 750, 177});
  window_.rebuildRootView(Size{200, 32}, true, 1.25);
  useManualClock();
  mask.follow();
  EXPECT_EQ(mask.region().boundingRect(), QRect(275, 0, 200, 32));  // closed: the notch
  state_.setOpen(true);
  settle();
  EXPECT_EQ(mask.region().boundingRect(), QRect(0, 0, 750, 177));
  // The bottom corners' radius is 27.5 rather than 22: a point 7 pixels in from the corner along
  // the diagonal lies outside the larger curve (and inside the usual one).
  EXPECT_FALSE(mask.region().contains(QPoint(7, 169)));
  EXPECT_FALSE(mask.region().contains(QPoint(742, 169)));
  EXPECT_TRUE(mask.region().contains(QPoint(14, 162)));
}

TEST_F(PanelShapeMaskTest, WithACompositorTheCutKeepsOnePixelAllRound) {
  PanelShapeMask mask(window_, PanelShapeMask::Fit::withEdge);
  EXPECT_EQ(mask.region().boundingRect(), QRect(199, 0, 202, 33));
  const QRegion exact = PanelShapeMask(window_, PanelShapeMask::Fit::exact).region();
  EXPECT_EQ(exact.subtracted(mask.region()), QRegion());
  // The rounded corners stay round: their far corner pixels are still cut away.
  EXPECT_FALSE(mask.region().contains(QPoint(199, 32)));
  EXPECT_FALSE(mask.region().contains(QPoint(400, 32)));
}

TEST_F(PanelShapeMaskTest, SwitchingTheFitCutsTheWindowAgainAtOnce) {
  PanelShapeMask mask(window_, PanelShapeMask::Fit::withEdge);
  state_.setOpen(true);
  settle();
  const QRegion withEdge = window_.mask();
  EXPECT_EQ(withEdge.boundingRect(), QRect(0, 0, 600, 148));
  mask.setFit(PanelShapeMask::Fit::exact);
  EXPECT_EQ(mask.fit(), PanelShapeMask::Fit::exact);
  EXPECT_EQ(window_.mask(), mask.region());
  // Only the edge round the rounded corners went: the exact cut lies wholly inside the other.
  EXPECT_NE(window_.mask(), withEdge);
  EXPECT_TRUE(window_.mask().subtracted(withEdge).isEmpty());
  mask.setFit(PanelShapeMask::Fit::withEdge);
  EXPECT_EQ(window_.mask(), withEdge);
}

TEST_F(PanelShapeMaskTest, ClosedPanelIsCutToTheNotchOutline) {
  PanelShapeMask mask(window_);
  EXPECT_EQ(mask.region().boundingRect(), QRect(200, 0, 200, 32));
  EXPECT_EQ(window_.mask(), mask.region());
  EXPECT_TRUE(mask.region().contains(QPoint(300, 16)));
}

TEST_F(PanelShapeMaskTest, RoundedLowerCornersAreCutAway) {
  PanelShapeMask mask(window_);
  EXPECT_FALSE(mask.region().contains(QPoint(200, 31)));
  EXPECT_FALSE(mask.region().contains(QPoint(399, 31)));
  EXPECT_TRUE(mask.region().contains(QPoint(230, 31)));
}

TEST_F(PanelShapeMaskTest, OpenedPanelIsCutToTheFullCard) {
  PanelShapeMask mask(window_);
  state_.setOpen(true);
  settle();
  EXPECT_EQ(mask.region().boundingRect(), QRect(0, 0, 600, 148));
  EXPECT_FALSE(mask.region().contains(QPoint(0, 147)));
  EXPECT_TRUE(mask.region().contains(QPoint(300, 140)));
}

TEST_F(PanelShapeMaskTest, MidAnimationTheMaskFollowsTheMovingCard) {
  PanelShapeMask mask(window_);
  state_.setOpen(true);
  now_ += 0.1;
  window_.rootView()->frameTimer().tick();
  const QRect between = mask.region().boundingRect();
  EXPECT_GT(between.width(), 200);
  EXPECT_LT(between.width(), 600);
}

TEST_F(PanelShapeMaskTest, RebuiltRootViewIsFollowedAfterwards) {
  PanelShapeMask mask(window_);
  window_.rebuildRootView(Size{200, 32}, true);
  useManualClock();
  mask.follow();
  state_.setOpen(true);
  settle();
  EXPECT_EQ(mask.region().boundingRect(), QRect(0, 0, 600, 148));
}

TEST_F(PanelShapeMaskWithoutNotchTest, ClosedPanelIsCutToNothing) {
  for (const auto fit : {PanelShapeMask::Fit::exact, PanelShapeMask::Fit::withEdge}) {
    PanelShapeMask mask(window_, fit);
    EXPECT_TRUE(mask.region().isEmpty());
    EXPECT_FALSE(showsAnything(window_));
  }
}

TEST_F(PanelShapeMaskWithoutNotchTest, OpeningCutsTheWindowToTheGrowingCardAndClosingToNothing) {
  PanelShapeMask mask(window_);
  state_.setOpen(true);
  now_ += 0.05;
  window_.rootView()->frameTimer().tick();
  const QRect growing = mask.region().boundingRect();
  EXPECT_GT(growing.width(), 200);
  EXPECT_LT(growing.width(), 600);
  EXPECT_EQ(window_.mask(), mask.region());
  settle();
  EXPECT_EQ(mask.region().boundingRect(), QRect(0, 0, 600, 148));
  state_.setOpen(false);
  settle();
  EXPECT_TRUE(mask.region().isEmpty());
  EXPECT_FALSE(showsAnything(window_));
}

TEST_F(PanelShapeMaskWithoutNotchTest, SwitchingTheFitKeepsAClosedPanelCutToNothing) {
  PanelShapeMask mask(window_, PanelShapeMask::Fit::withEdge);
  mask.setFit(PanelShapeMask::Fit::exact);
  EXPECT_TRUE(mask.region().isEmpty());
  EXPECT_FALSE(showsAnything(window_));
}

}  // namespace
}  // namespace brimly
