#include "usage/views/UsageView.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <cmath>
#include <functional>
#include <limits>

#include "InstalledFaces.h"
#include "ReferenceImage.h"
#include "ReferenceTypography.h"
#include "usage/Theme.h"
#include "usage/UsageColors.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

constexpr double gib = 1024.0 * 1024.0 * 1024.0;

MetricSample busyLaptop() {
  MetricSample sample;
  sample.cpu = 0.42;
  sample.gpu = 0.61;
  sample.memoryUsedBytes = static_cast<std::uint64_t>(8.53 * gib);
  sample.memoryTotalBytes = static_cast<std::uint64_t>(16 * gib);
  sample.memory = 8.53 / 16.0;
  sample.swapUsedBytes = 512ull * 1024 * 1024;
  sample.diskUsedBytes = static_cast<std::int64_t>(234.2 * gib);
  sample.diskTotalBytes = static_cast<std::int64_t>(460.4 * gib);
  sample.disk = 234.2 / 460.4;
  sample.temperatureC = 83.0;
  sample.powerState = PowerState::discharging(7.4);
  sample.batteryPercent = 85;
  return sample;
}

// Renders the grid on black, as the panel shows it.
QImage renderOnBlack(UsageView& view) {
  QImage image(view.sizeHint(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::black);
  view.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
  return image;
}

// The colour `colour` shows as over an opaque `background`.
QColor over(const QColor& colour, const QColor& background) {
  const float a = colour.alphaF();
  return QColor::fromRgbF(colour.redF() * a + background.redF() * (1 - a),
                          colour.greenF() * a + background.greenF() * (1 - a),
                          colour.blueF() * a + background.blueF() * (1 - a));
}

QColor overBlack(const QColor& colour) {
  return over(colour, Qt::black);
}

::testing::AssertionResult near(QColor actual, QColor expected, int tolerance = 3) {
  const int delta = std::max({std::abs(actual.red() - expected.red()),
                              std::abs(actual.green() - expected.green()),
                              std::abs(actual.blue() - expected.blue())});
  if (delta <= tolerance) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << "(" << actual.red() << ", " << actual.green() << ", " << actual.blue() << ") is not ("
         << expected.red() << ", " << expected.green() << ", " << expected.blue() << ")";
}

// The brightest pixel (by its sum of channels) in a rectangle.
QColor brightest(const QImage& image, QRect area) {
  QColor best(Qt::black);
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      const QColor c(image.pixel(x, y));
      if (c.red() + c.green() + c.blue() > best.red() + best.green() + best.blue()) best = c;
    }
  }
  return best;
}

class UsageViewTest : public ::testing::Test {
 protected:
  UsageViewTest() : view(3, 172.0, testing::designedTypography()) {
    view.frameTimer().setClock([this] { return now; });
  }

  const CellPlacement& cellOf(MetricKind kind) const {
    for (const auto& cell : view.geometry().cells) {
      if (cell.kind == kind) return cell;
    }
    throw std::runtime_error("kind not shown");
  }

  // The middle row of a cell's 3-point bar, in grid coordinates.
  int barRow(MetricKind kind) const {
    return static_cast<int>(cellOf(kind).frame.y + view.headerHeight() + 5.0 + 1.0);
  }
  int cellLeft(MetricKind kind) const { return static_cast<int>(cellOf(kind).frame.x); }

  double now = 50.0;
  UsageView view;
};

TEST_F(UsageViewTest, HeaderRowIsTheValuesLineInWholePoints) {
  EXPECT_EQ(view.headerHeight(), 16.0);  // 13-point text set 1.2 times its size, rounded up
}

TEST_F(UsageViewTest, ThreeColumnsOfSixCellsMakeTwoRowsInThe580PointFrame) {
  view.setSample(busyLaptop());
  const double cellHeight = view.headerHeight() + 5.0 + 3.0 + 5.0 + 11.0;
  EXPECT_EQ(view.sizeHint(), QSize(580, static_cast<int>(std::ceil(2 * cellHeight + 8 + 12))));
  ASSERT_EQ(view.geometry().cells.size(), 6u);
  EXPECT_EQ(cellOf(MetricKind::cpu).frame, (Rect{20.0, 6.0, 172.0, cellHeight}));
  EXPECT_EQ(cellOf(MetricKind::temp).frame.y, 6.0 + cellHeight + 8.0);
}

TEST_F(UsageViewTest, CellsFollowTheGivenOrderAndSelection) {
  view.setMetricOrder({MetricKind::pwr, MetricKind::cpu});
  ASSERT_EQ(view.cells().size(), 2u);
  EXPECT_EQ(view.cells()[0].label, "PWR");
  EXPECT_EQ(view.cells()[1].label, "CPU");
  EXPECT_EQ(view.geometry().cells[0].kind, MetricKind::pwr);
}

TEST_F(UsageViewTest, ZeroValueDrawsATwoPointStub) {
  MetricSample sample = busyLaptop();
  sample.cpu = 0.0;
  view.setSample(sample);
  const QImage image = renderOnBlack(view);
  const int x = cellLeft(MetricKind::cpu);
  const int y = barRow(MetricKind::cpu);
  const QColor green = overBlack(toQColor(usageColors(0.0).start));
  const QColor track = overBlack(toQColor(Theme::barTrack));
  // The stub's two pixels are green (its rounded ends leave them partly covered) and
  // everything after them is the faint track.
  EXPECT_GT(QColor(image.pixel(x, y)).green(), track.green() + 40);
  EXPECT_GT(QColor(image.pixel(x + 1, y)).green(), track.green() + 40);
  EXPECT_LT(QColor(image.pixel(x, y)).green(), green.green() + 3);
  EXPECT_TRUE(near(QColor(image.pixel(x + 3, y)), track));
  EXPECT_TRUE(near(QColor(image.pixel(x + 80, y)), track));
}

TEST_F(UsageViewTest, FullValueFillsTheWholeCellWidth) {
  MetricSample sample = busyLaptop();
  sample.cpu = 1.0;
  view.setSample(sample);
  const QImage image = renderOnBlack(view);
  const int x = cellLeft(MetricKind::cpu);
  const int y = barRow(MetricKind::cpu);
  const ColorPair red = usageColors(1.0);
  EXPECT_TRUE(near(QColor(image.pixel(x + 2, y)), overBlack(toQColor(red.start)), 4));
  EXPECT_TRUE(near(QColor(image.pixel(x + 169, y)), overBlack(toQColor(red.end)), 4));
  EXPECT_TRUE(near(QColor(image.pixel(x + 173, y)), Qt::black));  // past the cell
}

TEST_F(UsageViewTest, BarRunsThroughItsGradientFromLeadingToTrailing) {
  MetricSample sample = busyLaptop();
  sample.cpu = 0.5;  // 86 points of green
  view.setSample(sample);
  const QImage image = renderOnBlack(view);
  const int x = cellLeft(MetricKind::cpu);
  const int y = barRow(MetricKind::cpu);
  const ColorPair green = usageColors(0.5);
  const QColor start = overBlack(toQColor(green.start));
  const QColor end = overBlack(toQColor(green.end));
  EXPECT_TRUE(near(QColor(image.pixel(x + 2, y)), start, 4));
  EXPECT_TRUE(near(QColor(image.pixel(x + 83, y)), end, 4));
  const QColor middle(image.pixel(x + 43, y));
  EXPECT_TRUE(near(middle,
                   QColor((start.red() + end.red()) / 2, (start.green() + end.green()) / 2,
                          (start.blue() + end.blue()) / 2),
                   4));
  // The track shows past the fill.
  EXPECT_TRUE(near(QColor(image.pixel(x + 120, y)), overBlack(toQColor(Theme::barTrack))));
}

TEST_F(UsageViewTest, TrackIsThePrimaryColourAtSevenPercent) {
  const QColor track = overBlack(toQColor(Theme::primaryForeground.withOpacity(0.07)));
  EXPECT_TRUE(near(track, QColor(15, 15, 15), 1));
  view.setSample(busyLaptop());
  const QImage image = renderOnBlack(view);
  EXPECT_TRUE(
      near(QColor(image.pixel(cellLeft(MetricKind::gpu) + 150, barRow(MetricKind::gpu))), track));
}

TEST_F(UsageViewTest, TemperatureBarUsesTheHeatSteps) {
  view.setSample(busyLaptop());  // 83 °C: red
  const QImage image = renderOnBlack(view);
  const QColor red = overBlack(toQColor(usageColors(0.9).start));
  EXPECT_TRUE(
      near(QColor(image.pixel(cellLeft(MetricKind::temp) + 2, barRow(MetricKind::temp))), red, 4));
}

TEST_F(UsageViewTest, PowerBarIsCyanWhileChargingAndGreyOnMains) {
  MetricSample sample = busyLaptop();
  sample.powerState = PowerState::charging(25.0);  // half a bar
  view.setSample(sample);
  QImage image = renderOnBlack(view);
  const int x = cellLeft(MetricKind::pwr);
  const int y = barRow(MetricKind::pwr);
  EXPECT_TRUE(near(QColor(image.pixel(x + 2, y)),
                   overBlack(toQColor(Color::displayP3(0.36, 0.78, 0.85))), 4));

  sample.powerState = PowerState::acIdle();
  sample.systemPowerWatts = 10.0;  // half a bar on the mains scale
  view.setSample(sample);
  image = renderOnBlack(view);
  // The translucent grey lies over the track.
  const QColor grey = over(toQColor(Theme::secondaryForeground.withOpacity(0.55)),
                           overBlack(toQColor(Theme::barTrack)));
  EXPECT_TRUE(near(QColor(image.pixel(x + 2, y)), grey, 3));
  EXPECT_TRUE(near(QColor(image.pixel(x + 80, y)), grey, 3));
}

TEST_F(UsageViewTest, TheStubsOfReadingsThatCouldNotBeTakenAreAllTheSameDimmedGrey) {
  // A machine without a GPU load, a temperature or a power source: GPU, TEMP and PWR show the
  // dash and a stub in the dimmed grey, not a green one that reads as "0 %, fine".
  view.setSample(MetricSample{});
  const QImage image = renderOnBlack(view);
  const QColor grey = over(toQColor(dimmedBar), overBlack(toQColor(Theme::barTrack)));
  for (const MetricKind kind : {MetricKind::gpu, MetricKind::temp, MetricKind::pwr}) {
    EXPECT_TRUE(near(QColor(image.pixel(cellLeft(kind) + 1, barRow(kind))), grey, 3))
        << kind.rawValue();
  }
  // An idle processor's empty bar is a reading: its stub stays green (its gradient's middle).
  const QRgb cpu = image.pixel(cellLeft(MetricKind::cpu) + 1, barRow(MetricKind::cpu));
  EXPECT_GT(qGreen(cpu), 150);
  EXPECT_LT(qRed(cpu), 60);
}

TEST_F(UsageViewTest, LabelIsSecondaryAndValuePrimary) {
  view.setSample(busyLaptop());
  const QImage image = renderOnBlack(view);
  const Rect cell = cellOf(MetricKind::cpu).frame;
  const int header = static_cast<int>(view.headerHeight());
  const QRect labelArea(static_cast<int>(cell.x), static_cast<int>(cell.y), 40, header);
  const QRect valueArea(static_cast<int>(cell.x + cell.width) - 40, static_cast<int>(cell.y), 40,
                        header);
  EXPECT_TRUE(near(brightest(image, labelArea), overBlack(toQColor(Theme::secondaryForeground))));
  EXPECT_TRUE(near(brightest(image, valueArea), overBlack(toQColor(Theme::primaryForeground))));
}

TEST_F(UsageViewTest, HiddenGridTakesNewValuesAtOnce) {
  view.setSample(busyLaptop());
  MetricSample next = busyLaptop();
  next.cpu = 0.9;
  view.setSample(next);
  EXPECT_EQ(view.shownBarValue(MetricKind::cpu), 0.9);
  EXPECT_FALSE(view.isAnimating());
}

TEST_F(UsageViewTest, VisibleBarsGlideToNewValuesOverHalfASecond) {
  view.setSample(busyLaptop());
  view.show();
  MetricSample next = busyLaptop();
  next.cpu = 0.82;
  view.setSample(next);
  EXPECT_TRUE(view.isAnimating());
  // The glide sets off one frame in: its first step is shown with the sample that starts it.
  const double firstStep = UsageView::frameIntervalMs / 1000.0;
  const TimingCurve curve = TimingCurve::easeOut();
  EXPECT_NEAR(view.shownBarValue(MetricKind::cpu), 0.42 + 0.4 * curve(firstStep / 0.5), 1e-9);
  now += 0.25;
  EXPECT_NEAR(view.shownBarValue(MetricKind::cpu), 0.42 + 0.4 * curve((0.25 + firstStep) / 0.5),
              1e-9);
  now += 0.25 - firstStep;
  view.frameTimer().tick();
  EXPECT_EQ(view.shownBarValue(MetricKind::cpu), 0.82);
  EXPECT_FALSE(view.isAnimating());
}

TEST_F(UsageViewTest, UnchangedSampleDoesNotAnimate) {
  view.setSample(busyLaptop());
  view.show();
  view.setSample(busyLaptop());
  EXPECT_FALSE(view.isAnimating());
}

TEST_F(UsageViewTest, ANewValueTextTakesAQuarterSecond) {
  MetricSample next = busyLaptop();
  next.cpu = 0.43;  // "43%", a bar 73.96 points long
  view.setSample(next);
  view.show();
  next.cpu = 0.4302;  // still "43%", and the bar within its step: nothing to animate
  view.setSample(next);
  EXPECT_FALSE(view.isAnimating());
  next.cpu = 0.4352;  // "44%", the bar still within its step: only the text moves
  view.setSample(next);
  EXPECT_TRUE(view.isAnimating());
  now += 0.25;
  view.frameTimer().tick();
  EXPECT_FALSE(view.isAnimating());
}

TEST_F(UsageViewTest, AnotherTemperatureUnitIsNotAValueChange) {
  view.setSample(busyLaptop());
  view.show();
  view.setUseFahrenheit(true);  // a new text for the same value
  EXPECT_FALSE(view.isAnimating());
}

TEST_F(UsageViewTest, AShortLastRowIsCentred) {
  view.setMetricOrder({MetricKind::cpu, MetricKind::gpu, MetricKind::ram, MetricKind::disk});
  ASSERT_EQ(view.geometry().cells.size(), 4u);
  EXPECT_EQ(view.geometry().cells[3].frame.x, 204.0);  // (580 - 172) / 2
}

TEST_F(UsageViewTest, ChangingTheOrderAsksForANewSize) {
  const QSize two = view.sizeHint();
  view.setMetricOrder({MetricKind::cpu});
  EXPECT_LT(view.sizeHint().height(), two.height());
  EXPECT_EQ(view.size(), view.sizeHint());
}

// A minute of samples a second apart ending with `latest`, each made by `at` from its age in
// seconds (60 for the oldest, 0 for `latest`'s own).
SampleHistory minuteEndingWith(const MetricSample& latest,
                               const std::function<void(MetricSample&, int)>& at) {
  SampleHistory history;
  for (int age = 60; age >= 0; --age) {
    MetricSample sample = latest;
    at(sample, age);
    history.record(1000.0 - age, sample);
  }
  return history;
}

// The brightest pixel of the rows `top` to `bottom` (in a cell from its top) between the columns
// `left` and `right` (from its leading edge).
QColor brightestIn(const QImage& image, const CellPlacement& cell, int left, int right, int top,
                   int bottom) {
  const int x = static_cast<int>(cell.frame.x);
  const int y = static_cast<int>(cell.frame.y);
  return brightest(image, QRect(QPoint(x + left, y + top), QPoint(x + right, y + bottom)));
}

int sum(const QColor& colour) {
  return colour.red() + colour.green() + colour.blue();
}

TEST_F(UsageViewTest, TheTrendIsOffByDefaultAndAHistoryAloneDrawsNothing) {
  EXPECT_FALSE(view.showsTrend());
  const MetricSample latest = busyLaptop();
  view.setSample(latest);
  const QImage without = renderOnBlack(view);
  view.setSample(latest, minuteEndingWith(latest, [](MetricSample& s, int) { s.cpu = 0.95; }));
  EXPECT_TRUE(view.trendLine(MetricKind::cpu).empty());
  EXPECT_EQ(renderOnBlack(view), without);
}

TEST_F(UsageViewTest, TheTrendIsAFaintLineBehindTheBarAtTheHeightOfPastValues) {
  MetricSample latest = busyLaptop();
  latest.cpu = 0.1;  // a short bar now, after a busy minute
  view.setShowTrend(true);
  view.setSample(latest, minuteEndingWith(latest, [](MetricSample& s, int age) {
                   if (age > 0) s.cpu = 0.9;
                 }));
  ASSERT_EQ(view.trendLine(MetricKind::cpu).size(), 1u);
  const QImage image = renderOnBlack(view);
  const CellPlacement& cpu = cellOf(MetricKind::cpu);
  // The band runs from 3 points above the 3-point bar (rows 18 to 26 of the cell); a value of 0.9
  // lies a tenth of the way down it, clear of the bar, right of the short fill.
  const QColor line = brightestIn(image, cpu, 40, 160, 18, 20);
  EXPECT_GT(sum(line), 3 * 25);
  // Quiet: a grey dimmer than the secondary text and than the bar's fill.
  EXPECT_EQ(line.red(), line.blue());
  EXPECT_LT(sum(line), sum(overBlack(toQColor(Theme::secondaryForeground))));
  const QColor bar = brightestIn(image, cpu, 0, 10, 22, 22);
  EXPECT_LT(sum(line), sum(bar));
  EXPECT_LT(line.green(), bar.green() / 2);
  // Nothing of it beneath, where an empty bar would lie.
  EXPECT_EQ(brightestIn(image, cpu, 40, 160, 24, 26), QColor(Qt::black));
}

TEST_F(UsageViewTest, AMissingReadingLeavesAGapInTheTrendNotADropToZero) {
  MetricSample latest = busyLaptop();
  view.setShowTrend(true);
  view.setSample(latest, minuteEndingWith(latest, [](MetricSample& s, int age) {
                   s.gpu = 0.5;
                   if (age >= 20 && age <= 40) s.gpu.reset();
                 }));
  EXPECT_EQ(view.trendLine(MetricKind::gpu).size(), 2u);
  const QImage image = renderOnBlack(view);
  const CellPlacement& gpu = cellOf(MetricKind::gpu);
  // The band's columns for the seconds 40 to 20 ago (x from 20/60 to 40/60 of 172 points), above
  // and below the bar, with a pixel to spare for the line's round ends.
  const int gapLeft = static_cast<int>(172.0 * 20.0 / 60.0) + 2;
  const int gapRight = static_cast<int>(172.0 * 40.0 / 60.0) - 2;
  EXPECT_EQ(brightestIn(image, gpu, gapLeft, gapRight, 18, 20), QColor(Qt::black));
  EXPECT_EQ(brightestIn(image, gpu, gapLeft, gapRight, 24, 26), QColor(Qt::black));
  // Either side of the gap the line runs at half height, through the bar's rows.
  EXPECT_GT(sum(brightestIn(image, gpu, 120, 170, 21, 23)), 3 * 25);
}

TEST_F(UsageViewTest, SwitchingTheTrendOffDrawsTheGridAsWithout) {
  const MetricSample latest = busyLaptop();
  view.setSample(latest);
  const QImage without = renderOnBlack(view);
  view.setShowTrend(true);
  view.setSample(latest,
                 minuteEndingWith(latest, [](MetricSample& s, int age) { s.cpu = age / 60.0; }));
  EXPECT_NE(renderOnBlack(view), without);
  view.setShowTrend(false);
  EXPECT_TRUE(view.trendLine(MetricKind::cpu).empty());
  EXPECT_EQ(renderOnBlack(view), without);
}

TEST_F(UsageViewTest, MatchesTheReferenceRenderings) {
  const QString dir = BRIMLY_REFERENCE_DIR;
  view.setSample(busyLaptop());
  EXPECT_TRUE(testing::matchesReference(renderOnBlack(view), dir + "/usage-grid-six.png",
                                        testing::panelFaces));

  MetricSample charging = busyLaptop();
  charging.cpu = 0.0;
  charging.gpu.reset();
  charging.powerState = PowerState::charging(31.0);
  charging.batteryPercent = 62;
  charging.temperatureC = 58.0;
  view.setUseFahrenheit(true);
  view.setMetricOrder({MetricKind::pwr, MetricKind::gpu, MetricKind::cpu, MetricKind::temp});
  view.setSample(charging);
  EXPECT_TRUE(testing::matchesReference(renderOnBlack(view), dir + "/usage-grid-four.png",
                                        testing::panelFaces));
}

// --- A larger panel ---

// How many rows of `image` within `area` hold a pixel brighter than the dim grey of the track.
int litRows(const QImage& image, const QRect& area) {
  int rows = 0;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    bool lit = false;
    for (int x = area.left(); x <= area.right() && !lit; ++x)
      lit = qGray(image.pixel(x, y)) > 60;
    rows += lit ? 1 : 0;
  }
  return rows;
}

TEST_F(UsageViewTest, ALargerScaleLaysOutEveryLengthAQuarterLarger) {
  view.setSample(busyLaptop());
  view.setScale(1.25);
  EXPECT_EQ(view.scale(), 1.25);
  EXPECT_EQ(view.headerHeight(), 20.0);
  // Cells of 215 × 50, 15 points apart, 10 between the rows, in a grid of 725 (580 × 1.25).
  EXPECT_EQ(view.sizeHint(), QSize(725, 125));
  EXPECT_EQ(view.size(), view.sizeHint());
  EXPECT_EQ(view.geometry(),
            MetricGridLayout::layout(MetricKind::defaultOrder(), 3, 215.0, 50.0, 1.25));
  EXPECT_EQ(cellOf(MetricKind::cpu).frame, (Rect{25.0, 7.5, 215.0, 50.0}));
}

TEST_F(UsageViewTest, ALargerScaleDrawsTheBarsAndTextsAQuarterLarger) {
  MetricSample sample = busyLaptop();
  sample.cpu = 1.0;
  view.setSample(sample);
  const QImage usual = renderOnBlack(view);
  const Rect usualCpu = cellOf(MetricKind::cpu).frame;
  view.setScale(1.25);
  const QImage larger = renderOnBlack(view);
  const Rect largerCpu = cellOf(MetricKind::cpu).frame;
  // A full bar spans the whole cell: 172 points, then 215.
  const auto barLength = [](const QImage& image, const Rect& cell, double barMiddle) {
    int lit = 0;
    // The cell and the cell spacing on either side, which no other cell reaches into.
    for (int x = static_cast<int>(cell.x) - 10; x < static_cast<int>(cell.maxX()) + 10; ++x)
      lit += qGray(image.pixel(x, static_cast<int>(cell.y + barMiddle))) > 60 ? 1 : 0;
    return lit;
  };
  EXPECT_NEAR(barLength(usual, usualCpu, 16.0 + 5.0 + 1.5), 172, 1);
  EXPECT_NEAR(barLength(larger, largerCpu, 20.0 + 6.25 + 1.875), 215, 1);
  // The header's texts stand about a quarter taller.
  const auto header = [](const Rect& cell, double height) {
    return QRect(static_cast<int>(cell.x), static_cast<int>(cell.y), static_cast<int>(cell.width),
                 static_cast<int>(height));
  };
  const double usualText = litRows(usual, header(usualCpu, 16.0));
  const double largerText = litRows(larger, header(largerCpu, 20.0));
  ASSERT_GT(usualText, 5.0);
  EXPECT_NEAR(largerText / usualText, 1.25, 0.15);
}

TEST_F(UsageViewTest, BackAtTheUsualScaleTheGridIsDrawnExactlyAsBefore) {
  view.setSample(busyLaptop());
  const QImage before = renderOnBlack(view);
  view.setScale(1.25);
  view.setScale(1.0);
  EXPECT_EQ(view.sizeHint(), QSize(580, 100));
  EXPECT_EQ(renderOnBlack(view), before);
}

TEST_F(UsageViewTest, AScaleThatIsNoPositiveNumberIsIgnored) {
  view.setScale(1.25);
  for (double nonsense : {0.0, -1.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
    view.setScale(nonsense);
    EXPECT_EQ(view.scale(), 1.25) << nonsense;
  }
  EXPECT_EQ(view.sizeHint(), QSize(725, 125));
}

TEST_F(UsageViewTest, MatchesTheReferenceRenderingAtTheLargerScale) {
  view.setSample(busyLaptop());
  view.setScale(1.25);
  EXPECT_TRUE(testing::matchesReference(renderOnBlack(view),
                                        QString(BRIMLY_REFERENCE_DIR) + "/usage-grid-six-large.png",
                                        testing::panelFaces));
}

// A minute with some life in it: a processor that came and went, a GPU reading that went missing
// for ten seconds, memory filling slowly, a warm spell, a battery that drained faster for a while.
TEST_F(UsageViewTest, MatchesTheReferenceRenderingWithTheTrend) {
  const MetricSample latest = busyLaptop();
  view.setShowTrend(true);
  view.setSample(latest, minuteEndingWith(latest, [](MetricSample& s, int age) {
                   s.cpu = 0.42 + 0.3 * std::sin(age / 6.0);
                   if (age >= 15 && age <= 25) s.gpu.reset();
                   s.memory = 8.53 / 16.0 - age * 0.0015;
                   s.temperatureC = 70.0 + 13.0 * std::cos(age / 9.0);
                   s.powerState = PowerState::discharging(7.4 + (age > 30 ? 9.0 : 0.0));
                 }));
  EXPECT_TRUE(testing::matchesReference(renderOnBlack(view),
                                        QString(BRIMLY_REFERENCE_DIR) + "/usage-grid-trend.png",
                                        testing::panelFaces));
}

// Where neither designed face is installed the grid still draws in plain weights, never in a
// borrowed heavy bold, and the placeholder dash still reads as a dash ("GPU" below).
TEST_F(UsageViewTest, MatchesTheReferenceRenderingInTheFallbackFaces) {
  UsageView fallback(3, 172.0, testing::fallbackTypography());
  MetricSample sample = busyLaptop();
  sample.gpu.reset();
  fallback.setSample(sample);
  EXPECT_TRUE(testing::matchesReference(renderOnBlack(fallback),
                                        QString(BRIMLY_REFERENCE_DIR) + "/usage-grid-fallback.png",
                                        testing::panelFallbackFaces));
}

}  // namespace
}  // namespace brimly
