// The metric grid inside the notch panel's root view.
#include <gtest/gtest.h>

#include <QBackingStore>
#include <QCoreApplication>
#include <QEvent>
#include <QGraphicsEffect>
#include <QImage>
#include <functional>
#include <utility>

#include "InstalledFaces.h"
#include "PaintRecorder.h"
#include "ReferenceImage.h"
#include "ReferenceTypography.h"
#include "panel/PanelState.h"
#include "panel/views/QtGeometry.h"
#include "panel/views/RootView.h"
#include "usage/views/UsageView.h"

namespace brimly {
namespace {

MetricSample sample() {
  MetricSample s;
  s.cpu = 0.23;
  s.gpu = 0.07;
  s.memoryUsedBytes = 11ull << 30;
  s.memoryTotalBytes = 16ull << 30;
  s.memory = 11.0 / 16.0;
  s.diskUsedBytes = 402ll << 30;
  s.diskTotalBytes = 460ll << 30;
  s.disk = 402.0 / 460.0;
  s.temperatureC = 51.0;
  s.powerState = PowerState::acIdle();
  s.systemPowerWatts = 6.3;
  s.batteryPercent = 100;
  return s;
}

// The view and everything in it, over a transparent background, as a window shows it.
QImage renderOverTransparency(QWidget& view) {
  QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  view.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
  return image;
}

class PanelWithGridTest : public ::testing::Test {
 protected:
  PanelWithGridTest() {
    grid = new UsageView(3, 172.0, testing::designedTypography());
    grid->setSample(sample());
    view = std::make_unique<RootView>(state, RootViewMetrics::forNotch({185.0, 32.0}, true), grid);
    view->frameTimer().setClock([this] { return now; });
    grid->frameTimer().setClock([this] { return now; });
    state.setOpen(true);
    for (int frame = 0; frame < 200 && view->isAnimating(); ++frame) {
      now += 1.0 / 60.0;
      view->frameTimer().tick();
    }
  }

  QImage render() { return renderOverTransparency(*view); }

  PanelState state;
  double now = 10.0;
  UsageView* grid = nullptr;
  std::unique_ptr<RootView> view;
};

TEST_F(PanelWithGridTest, FirstRowStartsBelowTheNotchBandThePaddingAndTheGridsInset) {
  ASSERT_FALSE(view->isAnimating());
  EXPECT_EQ(grid->y() + grid->geometry().cells.front().frame.y, 32 + 8 + 6);
  const QImage image = render();
  // Nothing but black above the first row; the first row's text begins right below.
  bool drawnAbove = false;
  for (int y = 0; y < 46; ++y) {
    for (int x = 20; x < 580; ++x)
      drawnAbove |= QColor(image.pixel(x, y)) != QColor(Qt::black);
  }
  EXPECT_FALSE(drawnAbove);
  bool drawnInFirstLine = false;
  for (int y = 46; y < 46 + 16; ++y) {
    for (int x = 20; x < 192; ++x)
      drawnInFirstLine |= QColor(image.pixel(x, y)) != QColor(Qt::black);
  }
  EXPECT_TRUE(drawnInFirstLine);
}

TEST_F(PanelWithGridTest, OpenGridFitsTheCard) {
  EXPECT_EQ(view->cardFrame(), (Rect{0.0, 0.0, 600.0, 148.0}));
  EXPECT_LE(grid->geometry().size.height + 32 + 8 + 8, 148.0);
}

TEST_F(PanelWithGridTest, GridReplacedInPlaceWhenTheOrderChanges) {
  grid->setMetricOrder({MetricKind::cpu});
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(grid->geometry().cells.size(), 1u);
  EXPECT_EQ(grid->pos(), QPoint(10, 40));
  EXPECT_EQ(grid->size(), grid->sizeHint());
}

TEST_F(PanelWithGridTest, ClosedPanelDoesNoWorkForNewSamples) {
  state.setOpen(false);
  for (int frame = 0; frame < 200 && view->isAnimating(); ++frame) {
    now += 1.0 / 60.0;
    view->frameTimer().tick();
  }
  view->show();
  QCoreApplication::processEvents();
  testing::PaintRecorder counter;
  view->installEventFilter(&counter);
  grid->installEventFilter(&counter);
  MetricSample next = sample();
  next.cpu = 0.91;
  grid->setSample(next);
  QCoreApplication::processEvents();
  EXPECT_EQ(counter.count(), 0);
  EXPECT_FALSE(grid->isAnimating());
  EXPECT_FALSE(view->isAnimating());
  EXPECT_EQ(grid->shownBarValue(MetricKind::cpu), 0.91);  // ready when the panel opens
}

TEST_F(PanelWithGridTest, OpenPanelRepaintsOnlyWhenASampleArrives) {
  view->show();
  QCoreApplication::processEvents();
  testing::PaintRecorder counter;
  grid->installEventFilter(&counter);
  QCoreApplication::processEvents();
  EXPECT_EQ(counter.count(), 0);
  MetricSample next = sample();
  next.cpu = 0.91;
  grid->setSample(next);
  EXPECT_TRUE(grid->isAnimating());  // the bar glides while the panel shows it
  now += grid->frameTimer().msToNextFrame() / 1000.0;
  grid->frameTimer().tick();
  QCoreApplication::processEvents();
  EXPECT_GE(counter.count(), 1);
}

// The rest of the open panel's tests watch it on screen, as a person would.
class OpenPanelTest : public PanelWithGridTest {
 protected:
  OpenPanelTest() {
    view->show();
    QCoreApplication::processEvents();
    grid->installEventFilter(&paints);
  }

  // Runs the grid's frames until it has arrived, each when its timer asks for it; returns the
  // number of frames and whether each of them repainted something.
  std::pair<int, bool> runFrames() {
    int frames = 0;
    bool eachPainted = true;
    QCoreApplication::processEvents();
    while (grid->isAnimating() && frames < 100) {
      const int before = paints.count();
      now += grid->frameTimer().msToNextFrame() / 1000.0;
      grid->frameTimer().tick();
      QCoreApplication::processEvents();
      eachPainted = eachPainted && paints.count() > before;
      ++frames;
    }
    return {frames, eachPainted};
  }

  static MetricSample busierSample() {
    MetricSample next = sample();
    next.cpu = 0.91;                     // a long glide and a new value text
    next.memoryUsedBytes = 12ull << 30;  // a new value and detail line in another cell
    next.temperatureC = 9.0;             // a value text that gets shorter
    return next;
  }

  // After `change`, and after each frame it starts, what the window holds after the grid's
  // partial repaints is the grid drawn whole.
  void expectEachFrameDrawnAnew(const std::function<void()>& change) {
    const auto onScreen = [this] {
      const auto* shown = dynamic_cast<const QImage*>(view->backingStore()->paintDevice());
      return shown == nullptr ? QImage() : shown->copy(QRect(grid->pos(), grid->size()));
    };
    const auto drawnAnew = [this] {
      QImage image(grid->size(), QImage::Format_ARGB32_Premultiplied);
      image.fill(Qt::black);
      grid->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
      return image;
    };
    change();
    ASSERT_FALSE(onScreen().isNull());
    int frames = 0;
    for (bool first = true; first || (grid->isAnimating() && frames < 100); first = false) {
      if (!first) {
        now += grid->frameTimer().msToNextFrame() / 1000.0;
        grid->frameTimer().tick();
      }
      QCoreApplication::processEvents();
      EXPECT_EQ(onScreen().convertToFormat(QImage::Format_ARGB32_Premultiplied), drawnAnew())
          << "after frame " << frames;
      ++frames;
    }
    EXPECT_GE(frames, 5);
  }

  QRect cellRect(MetricKind kind) const {
    for (const CellPlacement& cell : grid->geometry().cells) {
      if (cell.kind == kind) {
        return toQRectF(cell.frame).toAlignedRect().adjusted(-1, -1, 1, 1);
      }
    }
    return {};
  }

  testing::PaintRecorder paints;
};

TEST_F(OpenPanelTest, GridIsLayeredOnlyWhileItFadesOrTheCardCutsIt) {
  // Opaque and wholly inside the open card: no layer, and the grid paints its own black.
  EXPECT_EQ(grid->graphicsEffect(), nullptr);
  EXPECT_TRUE(grid->testAttribute(Qt::WA_OpaquePaintEvent));
  state.setOpen(false);
  now += 0.05;
  view->frameTimer().tick();
  ASSERT_NE(grid->graphicsEffect(), nullptr);
  EXPECT_TRUE(grid->graphicsEffect()->isEnabled());
  EXPECT_FALSE(grid->testAttribute(Qt::WA_OpaquePaintEvent));
  state.setOpen(true);
  for (int frame = 0; frame < 200 && view->isAnimating(); ++frame) {
    now += 1.0 / 60.0;
    view->frameTimer().tick();
  }
  EXPECT_EQ(grid->graphicsEffect(), nullptr);
}

TEST_F(OpenPanelTest, TheGridsFramesLeaveTheCardBeneathAlone) {
  testing::PaintRecorder cardPaints;
  view->installEventFilter(&cardPaints);
  MetricSample next = sample();
  next.cpu = 0.91;
  grid->setSample(next);
  runFrames();
  EXPECT_GE(paints.count(), 5);
  EXPECT_EQ(cardPaints.count(), 0);
  // What the window shows is what the card and the grid drawn together show.
  QImage onScreen(view->size(), QImage::Format_ARGB32_Premultiplied);
  onScreen.fill(Qt::transparent);
  view->render(&onScreen, QPoint(), QRegion(), QWidget::DrawChildren);
  grid->setAttribute(Qt::WA_OpaquePaintEvent, false);
  EXPECT_EQ(onScreen, render());
}

TEST_F(OpenPanelTest, WhatEachFrameLeavesOnScreenIsTheWholeGridDrawnAnew) {
  expectEachFrameDrawnAnew([this] { grid->setSample(busierSample()); });
}

TEST_F(OpenPanelTest, WithTheTrendWhatEachFrameLeavesOnScreenIsTheWholeGridDrawnAnew) {
  grid->setShowTrend(true);
  QCoreApplication::processEvents();
  expectEachFrameDrawnAnew([this] {
    const MetricSample next = busierSample();
    SampleHistory history;
    for (int age = 60; age > 0; --age)
      history.record(now - age, age % 7 == 0 ? next : sample());
    history.record(now, next);
    grid->setSample(next, history);
  });
}

TEST_F(OpenPanelTest, WithTheTrendASampleAndItsLinesArePaintedTogether) {
  grid->setShowTrend(true);
  QCoreApplication::processEvents();
  paints.paints.clear();
  SampleHistory history;
  history.record(now - 1.0, sample());
  history.record(now, sample());
  grid->setSample(sample(), history);
  QCoreApplication::processEvents();
  ASSERT_EQ(paints.count(), 1);
  // Every cell's line is new, and only the strips around the bars were painted: the same sample
  // leaves the texts as they are.
  for (const CellPlacement& cell : grid->geometry().cells) {
    EXPECT_TRUE(paints.painted().intersects(cellRect(cell.kind))) << cell.kind.rawValue();
    const Rect header{cell.frame.x, cell.frame.y, cell.frame.width, grid->headerHeight() - 1.0};
    EXPECT_FALSE(paints.painted().intersects(toQRectF(header).toAlignedRect()))
        << cell.kind.rawValue();
  }
}

TEST_F(OpenPanelTest, ASampleRepaintsOnlyTheCellThatChanged) {
  MetricSample next = sample();
  next.cpu = 0.91;
  grid->setSample(next);
  runFrames();
  ASSERT_GE(paints.count(), 1);
  EXPECT_TRUE(cellRect(MetricKind::cpu).contains(paints.painted().boundingRect()));
}

TEST_F(OpenPanelTest, ASampleAndTheFirstStepOfWhatItMovesArePaintedTogether) {
  MetricSample next = sample();
  next.cpu = 0.91;                     // a new bar colour, a new text, a long glide
  next.memoryUsedBytes = 12ull << 30;  // and a new detail line in another cell
  grid->setSample(next);
  QCoreApplication::processEvents();
  ASSERT_EQ(paints.count(), 1);
  EXPECT_TRUE(paints.painted().intersects(cellRect(MetricKind::cpu)));
  EXPECT_TRUE(paints.painted().intersects(cellRect(MetricKind::ram)));
  EXPECT_LT(grid->shownBarValue(MetricKind::cpu), 0.91);
  EXPECT_GT(grid->shownBarValue(MetricKind::cpu), 0.23);  // already on its way
  EXPECT_EQ(grid->frameTimer().msToNextFrame(), UsageView::frameIntervalMs);
}

TEST_F(OpenPanelTest, PartsThatBeginToMoveShowTheirFirstStepAtOnce) {
  MetricSample next = sample();
  next.cpu = 0.30;  // a new text and a longer bar, in the same colours
  grid->setSample(next);
  QCoreApplication::processEvents();
  EXPECT_EQ(paints.count(), 1);  // no frame later than the sample for the first step of both
  now += grid->frameTimer().msToNextFrame() / 1000.0;
  grid->frameTimer().tick();
  QCoreApplication::processEvents();
  EXPECT_EQ(paints.count(), 2);
}

TEST_F(OpenPanelTest, GlidingBarRepaintsOnlyItsCellsValueAndBar) {
  MetricSample next = sample();
  next.cpu = 0.91;
  grid->setSample(next);
  QCoreApplication::processEvents();
  paints.paints.clear();
  runFrames();
  ASSERT_GE(paints.count(), 1);
  const QRect cpu = cellRect(MetricKind::cpu);
  const QRect painted = paints.painted().boundingRect();
  EXPECT_TRUE(cpu.contains(painted));
  const double barBottom =
      grid->headerHeight() + MetricGridLayout::cellPartSpacing + MetricGridLayout::barHeight;
  EXPECT_LE(painted.bottom(), cpu.top() + barBottom + 2);  // the detail line stays as it is
}

TEST_F(OpenPanelTest, FramesThatWouldShowNothingNewAreSkipped) {
  MetricSample next = sample();
  next.cpu = 0.25;  // the bar grows by 3.4 points: a few steps, most of them early
  grid->setSample(next);
  const auto [frames, eachPainted] = runFrames();
  // Every frame of the half second, had each been drawn.
  EXPECT_LT(frames, 500 / UsageView::frameIntervalMs);
  EXPECT_TRUE(eachPainted);
  EXPECT_EQ(grid->shownBarValue(MetricKind::cpu), 0.25);
}

TEST_F(OpenPanelTest, ASlowBarMovesInStepsOfTwoPixels) {
  MetricSample next = sample();
  next.cpu = 0.30;  // 12 pixels longer, in half a second: two pixels or less a frame
  grid->setSample(next);
  std::vector<double> lengths{grid->shownBarValue(MetricKind::cpu) * 172.0};
  while (grid->isAnimating() && lengths.size() < 100) {
    now += grid->frameTimer().msToNextFrame() / 1000.0;
    grid->frameTimer().tick();
    lengths.push_back(grid->shownBarValue(MetricKind::cpu) * 172.0);
  }
  EXPECT_LE(lengths.size(), 12u / 2 + 1);
  EXPECT_DOUBLE_EQ(lengths.back(), 0.30 * 172.0);
}

TEST_F(OpenPanelTest, AChangeTooSmallToSeeIsTakenWithoutFrames) {
  MetricSample next = sample();
  next.cpu = 0.2301;  // a sixtieth of a pixel longer, and still "23%"
  grid->setSample(next);
  QCoreApplication::processEvents();
  EXPECT_FALSE(grid->isAnimating());
  EXPECT_EQ(paints.count(), 0);
  EXPECT_EQ(grid->shownBarValue(MetricKind::cpu), 0.2301);
}

TEST_F(OpenPanelTest, ANewValueTextPaintsOnlyItsSteps) {
  MetricSample next = sample();
  next.cpu = 0.2351;  // "24%", the bar within its step: only the text moves
  grid->setSample(next);
  const auto [frames, eachPainted] = runFrames();
  EXPECT_EQ(paints.count(), ValueTransition::steps);  // the first with the sample
  EXPECT_EQ(frames, ValueTransition::steps - 1);
  EXPECT_TRUE(eachPainted);
}

TEST_F(OpenPanelTest, ANewTemperatureUnitIsPaintedOnceWithoutFrames) {
  grid->setUseFahrenheit(true);  // a new temperature text, the same value
  QCoreApplication::processEvents();
  EXPECT_FALSE(grid->isAnimating());
  EXPECT_EQ(paints.count(), 1);
}

TEST_F(OpenPanelTest, AnimationsEndExactlyOnTheNewValues) {
  MetricSample next = sample();
  next.cpu = 0.57;
  next.temperatureC = 64.0;
  grid->setSample(next);
  runFrames();
  const QImage glided = render();

  // The same panel given the new values straight away.
  PanelState openState;
  openState.setOpen(true);
  auto* direct = new UsageView(3, 172.0, testing::designedTypography());
  direct->setSample(next);
  RootView still(openState, RootViewMetrics::forNotch({185.0, 32.0}, true), direct);
  EXPECT_EQ(glided, renderOverTransparency(still));
}

// The larger panel: every length of the open card, its grid and its text a quarter larger.
class LargerPanelWithGridTest : public ::testing::Test {
 protected:
  LargerPanelWithGridTest() {
    grid = new UsageView(3, 172.0, testing::designedTypography());
    grid->setScale(1.25);
    grid->setSample(sample());
    state.setOpen(true);  // the view starts open, without animating
    view = std::make_unique<RootView>(state, RootViewMetrics::forNotch({185.0, 32.0}, true, 1.25),
                                      grid);
  }

  QImage render() { return renderOverTransparency(*view); }

  PanelState state;
  UsageView* grid = nullptr;
  std::unique_ptr<RootView> view;
};

TEST_F(LargerPanelWithGridTest, TheOpenGridFitsTheLargerCardCentredUnderTheNotch) {
  EXPECT_EQ(view->size(), QSize(750, 177));
  EXPECT_EQ(view->cardFrame(), (Rect{0.0, 0.0, 750.0, 177.0}));
  EXPECT_EQ(view->cardOutline(), (NotchShape{8.75, 27.5}));
  // The grid (725 × 125) is centred under the card, the padding of 10 below the notch band.
  EXPECT_EQ(grid->QWidget::geometry(), QRect(13, 42, 725, 125));
  EXPECT_LE(grid->QWidget::geometry().bottom() + 1 + 10, 177);
  EXPECT_EQ(grid->y() + grid->geometry().cells.front().frame.y, 32 + 10 + 7.5);
}

TEST_F(LargerPanelWithGridTest, MatchesTheReferenceRendering) {
  EXPECT_TRUE(testing::matchesReference(
      render(), QString(BRIMLY_REFERENCE_DIR) + "/panel-open-with-grid-large.png",
      testing::panelFaces));
}

TEST_F(PanelWithGridTest, MatchesTheReferenceRendering) {
  EXPECT_TRUE(testing::matchesReference(
      render(), QString(BRIMLY_REFERENCE_DIR) + "/panel-open-with-grid.png", testing::panelFaces));
}

}  // namespace
}  // namespace brimly
