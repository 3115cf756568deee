// The metric grid inside the notch panel's root view.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QImage>

#include "ReferenceImage.h"
#include "panel/PanelState.h"
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

class PanelWithGridTest : public ::testing::Test {
 protected:
  PanelWithGridTest() {
    grid = new UsageView(3, 172.0, UsageTypography{"DejaVu Sans", "DejaVu Sans Mono"});
    grid->setSample(sample());
    view = std::make_unique<RootView>(state, RootViewMetrics::forNotch({185.0, 32.0}), grid);
    view->frameTimer().setClock([this] { return now; });
    grid->frameTimer().setClock([this] { return now; });
    state.setOpen(true);
    for (int frame = 0; frame < 200 && view->isAnimating(); ++frame) {
      now += 1.0 / 60.0;
      view->frameTimer().tick();
    }
  }

  QImage render() {
    QImage image(view->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    view->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
  }

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

// Counts the paint events a widget receives.
class PaintCounter : public QObject {
 public:
  int paints = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
};

TEST_F(PanelWithGridTest, ClosedPanelDoesNoWorkForNewSamples) {
  state.setOpen(false);
  for (int frame = 0; frame < 200 && view->isAnimating(); ++frame) {
    now += 1.0 / 60.0;
    view->frameTimer().tick();
  }
  view->show();
  QCoreApplication::processEvents();
  PaintCounter counter;
  view->installEventFilter(&counter);
  grid->installEventFilter(&counter);
  MetricSample next = sample();
  next.cpu = 0.91;
  grid->setSample(next);
  QCoreApplication::processEvents();
  EXPECT_EQ(counter.paints, 0);
  EXPECT_FALSE(grid->isAnimating());
  EXPECT_FALSE(view->isAnimating());
  EXPECT_EQ(grid->shownBarValue(MetricKind::cpu), 0.91);  // ready when the panel opens
}

TEST_F(PanelWithGridTest, OpenPanelRepaintsOnlyWhenASampleArrives) {
  view->show();
  QCoreApplication::processEvents();
  PaintCounter counter;
  grid->installEventFilter(&counter);
  QCoreApplication::processEvents();
  EXPECT_EQ(counter.paints, 0);
  MetricSample next = sample();
  next.cpu = 0.91;
  grid->setSample(next);
  EXPECT_TRUE(grid->isAnimating());  // the bar glides while the panel shows it
  QCoreApplication::processEvents();
  EXPECT_GE(counter.paints, 1);
}

TEST_F(PanelWithGridTest, MatchesTheReferenceRendering) {
  EXPECT_TRUE(testing::matchesReference(
      render(), QString(BRIMLY_REFERENCE_DIR) + "/panel-open-with-grid.png"));
}

}  // namespace
}  // namespace brimly
