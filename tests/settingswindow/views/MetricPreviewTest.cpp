#include "settingswindow/views/MetricPreview.h"

#include <gtest/gtest.h>

#include <QPainter>

#include "SettingsWorld.h"
#include "settingswindow/SettingsTheme.h"
#include "usage/UsageColors.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

using Kinds = std::vector<MetricKind>;
using testing::FakeMachine;
using testing::near;
using testing::over;
using testing::SettingsWorld;

constexpr auto cpu = MetricKind::cpu;
constexpr auto gpu = MetricKind::gpu;
constexpr auto disk = MetricKind::disk;
constexpr auto temp = MetricKind::temp;
constexpr auto pwr = MetricKind::pwr;

// Both processor sensors of the fake laptop read `celsius`.
void processorAt(FakeMachine& machine, double celsius) {
  for (auto& sensor : machine.temperatureSensors) {
    if (sensor.product && sensor.product->rfind("PMU", 0) == 0) sensor.celsius = celsius;
  }
}

class MetricPreviewTest : public ::testing::Test {
 protected:
  explicit MetricPreviewTest(FakeMachine machine = FakeMachine::typicalLaptop())
      : world(std::move(machine)) {
    preview.frameTimer().setClock([this] { return now; });
    preview.resize(324, preview.sizeHint().height());
  }

  const PreviewCell& cellOf(MetricKind kind) const {
    for (const PreviewCell& cell : preview.placement().cells) {
      if (cell.kind == kind) return cell;
    }
    throw std::runtime_error("kind not shown");
  }

  // The preview on the window's surface, as the Metrics tab shows it.
  QImage onSurface() {
    QImage image(preview.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(toQColor(SettingsTheme::surface));
    preview.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
  }

  double now = 100.0;
  SettingsWorld world;
  MetricPreview preview{world.settings, world.monitor};
};

class BareMachinePreviewTest : public MetricPreviewTest {
 protected:
  BareMachinePreviewTest() : MetricPreviewTest(FakeMachine::bareMachine()) {}
};

// Edge cases first.

TEST_F(BareMachinePreviewTest, MissingTemperatureAndPowerGiveEmptyBarsWithTheirStubs) {
  ASSERT_FALSE(world.monitor.current().temperatureC);
  ASSERT_FALSE(world.monitor.current().systemPowerWatts);
  EXPECT_EQ(preview.shownFill(temp), 0.0);
  EXPECT_EQ(preview.shownFill(pwr), 0.0);
  EXPECT_EQ(MetricPreviewLayout::fillFrame(cellOf(temp), preview.shownFill(temp)).width, 2.0);
  EXPECT_EQ(MetricPreviewLayout::fillFrame(cellOf(pwr), preview.shownFill(pwr)).width, 2.0);

  // The stub of a reading that could not be taken is the dimmed grey, not the accent, which
  // would read as a low reading; the rest of the track is the faint track colour.
  const QImage image = onSurface();
  const QColor well = over(toQColor(SettingsTheme::drawer), toQColor(SettingsTheme::surface));
  const QColor onTrack = over(toQColor(MetricPreviewLayout::trackColor), well);
  for (const MetricKind kind : {temp, pwr}) {
    const Rect track = cellOf(kind).track;
    const int y = static_cast<int>(track.y + 1.0);
    const QColor stub = image.pixelColor(static_cast<int>(track.x) + 1, y);
    const QColor rest = image.pixelColor(static_cast<int>(track.x) + 40, y);
    EXPECT_TRUE(near(stub, over(toQColor(dimmedBar), onTrack), 4)) << kind.rawValue();
    EXPECT_TRUE(near(rest, onTrack, 4)) << kind.rawValue();
  }
  // The processor's reading is there: its bar is the accent.
  const Rect processor = cellOf(cpu).track;
  const QColor bar =
      image.pixelColor(static_cast<int>(processor.x) + 1, static_cast<int>(processor.y + 1.0));
  EXPECT_GT(bar.green() - bar.red(), 40);
}

TEST_F(MetricPreviewTest, ThirtyDegreesIsAnEmptyBarAndAHundredAFullOne) {
  world.nextSample([](FakeMachine& machine) { processorAt(machine, 30.0); });
  ASSERT_EQ(world.monitor.current().temperatureC, 30.0);
  EXPECT_EQ(preview.targetFill(temp), 0.0);
  EXPECT_EQ(preview.shownFill(temp), 0.0);
  world.nextSample([](FakeMachine& machine) { processorAt(machine, 100.0); });
  EXPECT_EQ(preview.targetFill(temp), 1.0);
  EXPECT_EQ(preview.shownFill(temp), 1.0);
}

TEST_F(MetricPreviewTest, TwentyWattsIsAFullBar) {
  // 100 J over the 5 seconds between samples.
  world.nextSample([](FakeMachine& machine) { machine.addEnergy("CPU Energy", 100'000'000'000); });
  ASSERT_TRUE(world.monitor.current().systemPowerWatts);
  EXPECT_DOUBLE_EQ(*world.monitor.current().systemPowerWatts, 20.0);
  EXPECT_EQ(preview.targetFill(pwr), 1.0);
}

TEST_F(MetricPreviewTest, AMetricThatIsNotShownHasNoBar) {
  world.settings.setMetricOrder({cpu});
  EXPECT_EQ(preview.shownFill(temp), 0.0);
  EXPECT_EQ(preview.placement().cells.size(), 1u);
}

// The grid.

TEST_F(MetricPreviewTest, TheGridFollowsTheShownMetricsInRowsOfThree) {
  const int twoRows = preview.sizeHint().height();
  world.settings.setMetricOrder({pwr, temp, disk, gpu});
  const MetricPreviewGeometry& geometry = preview.placement();
  ASSERT_EQ(geometry.cells.size(), 4u);
  EXPECT_EQ(geometry.cells[0].kind, pwr);
  EXPECT_EQ(geometry.cells[3].kind, gpu);
  EXPECT_EQ(geometry.cells[3].frame.x, 12.0);
  EXPECT_GT(geometry.cells[3].frame.y, geometry.cells[2].frame.y);
  world.settings.setMetricOrder({pwr, temp});
  EXPECT_LT(preview.sizeHint().height(), twoRows);
  EXPECT_EQ(preview.placement().cells.size(), 2u);
}

TEST_F(MetricPreviewTest, CellsAre96PointBarsUnderTheirTitles) {
  EXPECT_EQ(preview.cellWidth(), 96.0);
  const PreviewCell& cell = cellOf(cpu);
  EXPECT_EQ(cell.track.width, 96.0);
  EXPECT_EQ(cell.track.height, 2.5);
  EXPECT_EQ(cell.track.y, cell.title.maxY() + 4.0);
  EXPECT_EQ(cell.frame.x, 12.0);
  EXPECT_EQ(cell.frame.y, 12.0);
}

TEST_F(MetricPreviewTest, TheWellIsBlackAt35PercentOnTheSurface) {
  const QImage image = onSurface();
  EXPECT_TRUE(near(image.pixelColor(160, 6),
                   over(toQColor(SettingsTheme::drawer), toQColor(SettingsTheme::surface))));
  // The rounded corner leaves the very corner pixel on the surface.
  EXPECT_TRUE(near(image.pixelColor(0, 0), toQColor(SettingsTheme::surface), 6));
}

TEST_F(MetricPreviewTest, TheBarIsTheAccentAsLongAsTheFill) {
  world.settings.setMetricOrder({temp});
  world.nextSample([](FakeMachine& machine) { processorAt(machine, 65.0); });
  ASSERT_DOUBLE_EQ(preview.shownFill(temp), 0.5);
  const QImage image = onSurface();
  const Rect track = cellOf(temp).track;
  const int y = static_cast<int>(track.y + 1.0);
  const QColor well = over(toQColor(SettingsTheme::drawer), toQColor(SettingsTheme::surface));
  EXPECT_TRUE(near(image.pixelColor(static_cast<int>(track.x + 24), y),
                   over(toQColor(Theme::accent), well), 12));
  EXPECT_TRUE(near(image.pixelColor(static_cast<int>(track.x + 72), y),
                   over(toQColor(MetricPreviewLayout::trackColor), well), 4));
}

// The motion.

TEST_F(MetricPreviewTest, WhileNotOnScreenABarTakesItsNewLengthAtOnce) {
  ASSERT_FALSE(preview.isVisible());
  world.nextSample([](FakeMachine& machine) { processorAt(machine, 100.0); });
  EXPECT_EQ(preview.shownFill(temp), 1.0);
  EXPECT_FALSE(preview.isAnimating());
}

TEST_F(MetricPreviewTest, OnScreenABarEasesOutToItsNewLengthOverFourTenthsOfASecond) {
  preview.show();
  const double from = preview.shownFill(temp);
  EXPECT_DOUBLE_EQ(from, (51.0 - 30.0) / 70.0);
  world.nextSample([](FakeMachine& machine) { processorAt(machine, 100.0); });
  EXPECT_TRUE(preview.isAnimating());
  EXPECT_EQ(preview.targetFill(temp), 1.0);
  EXPECT_DOUBLE_EQ(preview.shownFill(temp), from);
  now += 0.2;
  const double halfway = preview.shownFill(temp);
  EXPECT_GT(halfway, from + (1.0 - from) / 2.0);  // eased out: past the middle at half time
  EXPECT_LT(halfway, 1.0);
  now += 0.1999;
  preview.frameTimer().tick();
  EXPECT_TRUE(preview.isAnimating());
  EXPECT_LT(preview.shownFill(temp), 1.0);
  now += 0.0001;
  EXPECT_EQ(preview.shownFill(temp), 1.0);
  preview.frameTimer().tick();
  EXPECT_FALSE(preview.isAnimating());
}

TEST_F(MetricPreviewTest, ANewSampleInMidFlightHeadsOnFromWhereTheBarIs) {
  preview.show();
  world.nextSample([](FakeMachine& machine) { processorAt(machine, 100.0); });
  now += 0.1;
  const double between = preview.shownFill(temp);
  world.nextSample([](FakeMachine& machine) { processorAt(machine, 30.0); });
  EXPECT_DOUBLE_EQ(preview.shownFill(temp), between);
  now += 0.4;
  EXPECT_EQ(preview.shownFill(temp), 0.0);
}

TEST_F(MetricPreviewTest, AnUnchangedReadingStartsNoFrames) {
  preview.show();
  world.nextSample([](FakeMachine&) {});
  EXPECT_FALSE(preview.isAnimating());
}

TEST_F(MetricPreviewTest, AMetricShownAgainAppearsWithItsReadingAtOnce) {
  preview.show();
  world.settings.setMetric(temp, false);
  world.nextSample([](FakeMachine& machine) { processorAt(machine, 100.0); });
  world.settings.setMetric(temp, true);
  EXPECT_EQ(preview.shownFill(temp), 1.0);
}

}  // namespace
}  // namespace brimly
