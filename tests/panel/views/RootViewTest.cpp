#include "panel/views/RootView.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <vector>

#include "PaintRecorder.h"
#include "ReferenceImage.h"
#include "SolidGrid.h"
#include "panel/FadeAnimation.h"
#include "panel/PanelState.h"

namespace brimly {
namespace {

const QColor gridColour(40, 200, 120);

class RootViewTest : public ::testing::Test {
 protected:
  RootViewTest() { makeView({185.0, 32.0}); }

  // A notch of `notch`, with a camera housing round it unless `hasNotch` says otherwise.
  void makeView(Size notch, bool hasNotch = true) {
    grid = new SolidGrid({580, 100}, gridColour);
    view = std::make_unique<RootView>(state, RootViewMetrics::forNotch(notch, hasNotch), grid);
    view->frameTimer().setClock([this] { return now; });
    const Size size = {600.0, notch.height + 116.0};
    view->resize(static_cast<int>(size.width), static_cast<int>(size.height));
  }

  // Moves the hand-held clock on and delivers one frame, as the frame timer would.
  void advanceTo(double time) {
    now = time;
    view->frameTimer().tick();
  }

  void settle() {
    for (int frame = 0; frame < 200 && view->isAnimating(); ++frame)
      advanceTo(now + 1.0 / 60.0);
  }

  QImage render() {
    QImage image(view->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    view->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
  }

  PanelState state;
  double now = 100.0;
  SolidGrid* grid = nullptr;
  std::unique_ptr<RootView> view;
};

bool isOpaqueBlack(QRgb pixel) {
  return qAlpha(pixel) == 255 && qRed(pixel) == 0 && qGreen(pixel) == 0 && qBlue(pixel) == 0;
}

// How many pixels of `image` are not wholly transparent.
int drawnPixels(const QImage& image) {
  int drawn = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x)
      drawn += qAlpha(image.pixel(x, y)) != 0 ? 1 : 0;
  }
  return drawn;
}

TEST_F(RootViewTest, ClosedOutlineIsTheNotchCentredOnTheTopEdge) {
  EXPECT_EQ(view->cardFrame(), (Rect{207.5, 0.0, 185.0, 32.0}));
  const QImage image = render();
  EXPECT_TRUE(isOpaqueBlack(image.pixel(300, 16)));
  EXPECT_TRUE(isOpaqueBlack(image.pixel(209, 10)));  // left edge, on its straight part
  EXPECT_TRUE(isOpaqueBlack(image.pixel(390, 10)));  // right edge
  EXPECT_TRUE(isOpaqueBlack(image.pixel(300, 31)));  // bottom edge
  EXPECT_EQ(qAlpha(image.pixel(205, 10)), 0);        // beside the notch
  EXPECT_EQ(qAlpha(image.pixel(394, 10)), 0);
  EXPECT_EQ(qAlpha(image.pixel(300, 33)), 0);  // below it
  EXPECT_EQ(qAlpha(image.pixel(208, 31)), 0);  // cut by the 22-point bottom corners
  EXPECT_EQ(qAlpha(image.pixel(391, 31)), 0);
  EXPECT_EQ(qAlpha(image.pixel(207, 0)), 0);  // and by the 7-point top corners
}

TEST_F(RootViewTest, ClosedShowsNoGrid) {
  EXPECT_EQ(view->contentOpacity(), 0.0);
  EXPECT_FALSE(grid->isVisibleTo(view.get()));
  const QImage image = render();
  EXPECT_EQ(qAlpha(image.pixel(300, 60)), 0);
}

TEST_F(RootViewTest, OpenCardIs600By148ForA32PointNotch) {
  state.setOpen(true);
  settle();
  EXPECT_EQ(view->cardFrame(), (Rect{0.0, 0.0, 600.0, 148.0}));
  const QImage image = render();
  EXPECT_TRUE(isOpaqueBlack(image.pixel(300, 20)));   // the clear band over the notch is black
  EXPECT_TRUE(isOpaqueBlack(image.pixel(1, 60)));     // left edge
  EXPECT_TRUE(isOpaqueBlack(image.pixel(300, 146)));  // below the grid
  EXPECT_EQ(qAlpha(image.pixel(1, 147)), 0);          // rounded bottom corners
  EXPECT_EQ(qAlpha(image.pixel(598, 147)), 0);
}

TEST_F(RootViewTest, GridSitsCentredBelowTheNotchBandAndItsPadding) {
  EXPECT_EQ(grid->geometry(), QRect(10, 32 + 8, 580, 100));
  state.setOpen(true);
  settle();
  EXPECT_EQ(view->contentOpacity(), 1.0);
  const QImage image = render();
  EXPECT_EQ(QColor(image.pixel(300, 40)), gridColour);
  EXPECT_EQ(QColor(image.pixel(10, 60)), gridColour);
  EXPECT_TRUE(isOpaqueBlack(image.pixel(300, 39)));
  EXPECT_TRUE(isOpaqueBlack(image.pixel(9, 60)));
}

TEST_F(RootViewTest, GridFadesInOnlyAfterTheOutlineHasBegunToGrow) {
  state.setOpen(true);
  advanceTo(now + 0.1);
  EXPECT_GT(view->cardFrame().width, 185.0);
  EXPECT_EQ(view->contentOpacity(), 0.0);
  advanceTo(now + 0.11);  // 0.21 s after opening: half-way through the fade
  EXPECT_NEAR(view->contentOpacity(), TimingCurve::easeOut()(0.5), 1e-9);
  EXPECT_TRUE(grid->isVisibleTo(view.get()));
}

TEST_F(RootViewTest, GridFadesOutAtOnceWhenClosing) {
  state.setOpen(true);
  settle();
  state.setOpen(false);
  advanceTo(now + 0.09);
  EXPECT_NEAR(view->contentOpacity(), 1.0 - TimingCurve::easeOut()(0.5), 1e-9);
  advanceTo(now + 0.09);
  EXPECT_EQ(view->contentOpacity(), 0.0);
  EXPECT_FALSE(grid->isVisibleTo(view.get()));
  EXPECT_GT(view->cardFrame().width, 185.0);  // the outline is still shrinking
  settle();
  EXPECT_EQ(view->cardFrame(), (Rect{207.5, 0.0, 185.0, 32.0}));
}

TEST_F(RootViewTest, GridIsCutToTheOutlineWhileTheCardMoves) {
  state.setOpen(true);
  advanceTo(now + 0.25);
  const Rect card = view->cardFrame();
  ASSERT_LT(card.width, 580.0);
  ASSERT_GT(view->contentOpacity(), 0.0);
  const QImage image = render();
  const int inside = static_cast<int>(card.midX());
  EXPECT_NE(QColor(image.pixel(inside, 45)), QColor(Qt::black));  // grid shows inside the card
  EXPECT_EQ(qAlpha(image.pixel(static_cast<int>(card.minX()) - 3, 45)), 0);
  EXPECT_EQ(qAlpha(image.pixel(static_cast<int>(card.maxX()) + 3, 45)), 0);
  EXPECT_EQ(qAlpha(image.pixel(inside, static_cast<int>(card.maxY()) + 2)), 0);
}

TEST_F(RootViewTest, TogglingTwiceQuicklyRetargetsFromWhereTheCardIs) {
  state.setOpen(true);
  advanceTo(now + 0.1);
  const Rect before = view->cardFrame();
  state.setOpen(false);
  EXPECT_EQ(view->cardFrame(), before);  // no jump at the moment of the change
  advanceTo(now + 1.0 / 60.0);
  EXPECT_GT(view->cardFrame().width, before.width);  // still carried outwards by its speed
  settle();
  EXPECT_EQ(view->cardFrame(), (Rect{207.5, 0.0, 185.0, 32.0}));
  EXPECT_EQ(view->contentOpacity(), 0.0);
}

TEST_F(RootViewTest, AnimatesOnlyWhileSomethingMoves) {
  EXPECT_FALSE(view->isAnimating());
  state.setOpen(true);
  EXPECT_TRUE(view->isAnimating());
  settle();
  EXPECT_FALSE(view->isAnimating());
  state.setOpen(true);  // the same value again: nothing to move
  EXPECT_FALSE(view->isAnimating());
}

TEST_F(RootViewTest, IdlePanelSchedulesNoRepaint) {
  state.setOpen(true);
  settle();
  view->show();
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();
  testing::PaintRecorder counter;
  view->installEventFilter(&counter);
  grid->installEventFilter(&counter);
  state.setOpen(true);
  for (int i = 0; i < 5; ++i)
    QCoreApplication::processEvents();
  EXPECT_FALSE(view->isAnimating());
  EXPECT_EQ(counter.count(), 0);
}

TEST_F(RootViewTest, OpeningBeforeTheFirstFrameShowsTheOpenCardAtOnce) {
  view->show();  // on its way to the screen, not there yet
  state.setOpen(true);
  EXPECT_FALSE(view->isAnimating());
  EXPECT_EQ(view->cardFrame(), (Rect{0.0, 0.0, 600.0, 148.0}));
  EXPECT_EQ(view->contentOpacity(), 1.0);
}

TEST_F(RootViewTest, ADrawerOfItsOwnSaysWhenTheFirstFrameIsOnScreen) {
  // Shown through something other than its window (a layer surface): the window is never exposed.
  bool frameShown = false;
  view->setFrameShownCheck([&] { return frameShown; });
  view->show();
  state.setOpen(true);
  EXPECT_FALSE(view->isAnimating());  // no frame yet: the open card at once
  EXPECT_EQ(view->cardFrame(), (Rect{0.0, 0.0, 600.0, 148.0}));
  frameShown = true;
  state.setOpen(false);
  EXPECT_TRUE(view->isAnimating());  // on screen: it springs shut
}

TEST_F(RootViewTest, JumpBeforeTheFirstFrameSaysTheCardChanged) {
  QSignalSpy changed(view.get(), &RootView::cardChanged);
  view->show();
  const int before = changed.count();
  state.setOpen(true);
  EXPECT_EQ(changed.count(), before + 1);
}

TEST_F(RootViewTest, EveryFrameSaysTheCardChanged) {
  QSignalSpy changed(view.get(), &RootView::cardChanged);
  state.setOpen(true);
  advanceTo(now + 1.0 / 60.0);
  advanceTo(now + 1.0 / 60.0);
  EXPECT_EQ(changed.count(), 2);
}

TEST_F(RootViewTest, ResizeSaysTheCardChanged) {
  view->show();
  QSignalSpy changed(view.get(), &RootView::cardChanged);
  view->resize(640, 148);
  EXPECT_EQ(changed.count(), 1);
}

TEST_F(RootViewTest, OnceOnScreenChangesAnimate) {
  view->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
  state.setOpen(true);
  EXPECT_TRUE(view->isAnimating());
  EXPECT_EQ(view->cardFrame(), (Rect{207.5, 0.0, 185.0, 32.0}));
}

TEST_F(RootViewTest, StartsInTheStatesCurrentFormWithoutAnimating) {
  state.setOpen(true);
  makeView({185.0, 32.0});
  EXPECT_FALSE(view->isAnimating());
  EXPECT_EQ(view->cardFrame(), (Rect{0.0, 0.0, 600.0, 148.0}));
  EXPECT_EQ(view->contentOpacity(), 1.0);
}

TEST_F(RootViewTest, WithoutANotchTheClosedPanelPaintsNoPixel) {
  makeView({200.0, 32.0}, false);
  EXPECT_EQ(view->cardFrame(), (Rect{200.0, 0.0, 200.0, 32.0}));  // it still grows from there
  EXPECT_EQ(view->cardOpacity(), 0.0);
  EXPECT_EQ(drawnPixels(render()), 0);
}

TEST_F(RootViewTest, WithoutANotchTheCardFadesInAsItBeginsToGrow) {
  makeView({200.0, 32.0}, false);
  const double opened = now;
  state.setOpen(true);
  std::vector<double> opacities;
  for (const double after : {0.02, 0.04, 0.06, 0.08}) {
    advanceTo(opened + after);
    opacities.push_back(view->cardOpacity());
    const Rect card = view->cardFrame();
    // The black card is drawn at that opacity (premultiplied: the alpha tells).
    const QRgb middle = render().pixel(static_cast<int>(card.midX()), 10);
    EXPECT_NEAR(qAlpha(middle), 255.0 * opacities.back(), 1.0) << after;
    EXPECT_EQ(qRed(middle), 0);
  }
  EXPECT_GT(opacities.front(), 0.0);
  for (std::size_t i = 1; i < opacities.size(); ++i)
    EXPECT_GT(opacities[i], opacities[i - 1]);
  EXPECT_LT(opacities.back(), 1.0);
  // Opaque before the grid begins to fade in over it, 0.12 s after opening.
  advanceTo(opened + FadeAnimation::openingDelay);
  EXPECT_EQ(view->cardOpacity(), 1.0);
  EXPECT_EQ(view->contentOpacity(), 0.0);
  settle();
  EXPECT_TRUE(isOpaqueBlack(render().pixel(300, 20)));
}

TEST_F(RootViewTest, WithoutANotchTheCardFadesOutAsItFinishesClosing) {
  makeView({200.0, 32.0}, false);
  state.setOpen(true);
  settle();
  const double closed = now;
  state.setOpen(false);
  advanceTo(closed + 0.1);
  EXPECT_EQ(view->cardOpacity(), 1.0);  // still shrinking from the open card
  advanceTo(closed + 0.2);
  const double fading = view->cardOpacity();
  EXPECT_GT(fading, 0.0);
  EXPECT_LT(fading, 1.0);
  EXPECT_EQ(view->contentOpacity(), 0.0);  // the grid went first
  advanceTo(closed + 0.3);
  EXPECT_LT(view->cardOpacity(), fading);
  settle();
  EXPECT_EQ(view->cardOpacity(), 0.0);
  EXPECT_EQ(drawnPixels(render()), 0);
}

TEST_F(RootViewTest, OverANotchTheClosedCardIsOpaqueAndTheOpeningCardStaysSo) {
  EXPECT_EQ(view->cardOpacity(), 1.0);
  state.setOpen(true);
  advanceTo(now + 0.02);
  EXPECT_EQ(view->cardOpacity(), 1.0);
  EXPECT_TRUE(isOpaqueBlack(render().pixel(300, 10)));
}

TEST_F(RootViewTest, MatchesTheReferenceRenderings) {
  const QString dir = BRIMLY_REFERENCE_DIR;
  EXPECT_TRUE(testing::matchesReference(render(), dir + "/root-closed-185x32.png"));
  state.setOpen(true);
  advanceTo(now + 0.2);
  EXPECT_TRUE(testing::matchesReference(render(), dir + "/root-opening-0.2s.png"));
  settle();
  EXPECT_TRUE(testing::matchesReference(render(), dir + "/root-open-solid-grid.png"));
}

}  // namespace
}  // namespace brimly
