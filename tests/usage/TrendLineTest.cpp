#include "usage/TrendLine.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace brimly {
namespace {

// The panel's cell: 172 points wide, its 3-point bar 21 points from the top.
const CellGeometry cell = MetricGridLayout::cellLayout(172.0, 16.0);
const Rect band = TrendLine::band(cell);

MetricSample withCpu(double cpu) {
  MetricSample sample;
  sample.cpu = cpu;
  sample.gpu = cpu;
  return sample;
}

MetricSample withoutGpu(double cpu) {
  MetricSample sample = withCpu(cpu);
  sample.gpu.reset();
  return sample;
}

SampleHistory historyOf(std::initializer_list<TimedSample> samples) {
  SampleHistory history;
  for (const TimedSample& timed : samples)
    history.record(timed.takenAt, timed.sample);
  return history;
}

// How many points each run has, in order.
std::vector<std::size_t> lengths(const std::vector<TrendLine::Run>& runs) {
  std::vector<std::size_t> result;
  for (const TrendLine::Run& run : runs)
    result.push_back(run.size());
  return result;
}

// The y of a bar value, with the line's half width kept inside the band.
double yOf(double value) {
  return band.y + 0.5 + (1.0 - value) * (band.height - 1.0);
}

TEST(TrendLine, TheBandIsTheBarWithItsOwnHeightAboveAndBelow) {
  EXPECT_EQ(cell.bar, (Rect{0.0, 21.0, 172.0, 3.0}));
  EXPECT_EQ(band, (Rect{0.0, 18.0, 172.0, 9.0}));
  // It stays clear of the header and the detail line.
  EXPECT_GT(band.y, cell.header.maxY());
  EXPECT_LT(band.maxY(), cell.detail.y);
}

TEST(TrendLine, ValueIsTheBarsValue) {
  MetricSample sample = withCpu(0.42);
  sample.memory = 0.5;
  sample.temperatureC = 65.0;
  EXPECT_EQ(TrendLine::value(MetricKind::cpu, sample), 0.42);
  EXPECT_EQ(TrendLine::value(MetricKind::gpu, sample), 0.42);
  EXPECT_EQ(TrendLine::value(MetricKind::ram, sample), 0.5);
  EXPECT_EQ(TrendLine::value(MetricKind::temp, sample), 0.5);  // (65 - 30) / 70
}

TEST(TrendLine, AReadingThatCouldNotBeTakenHasNoValueRatherThanZero) {
  MetricSample sample = withoutGpu(0.3);
  sample.temperatureC.reset();
  EXPECT_FALSE(TrendLine::value(MetricKind::gpu, sample).has_value());
  EXPECT_FALSE(TrendLine::value(MetricKind::temp, sample).has_value());
  EXPECT_FALSE(TrendLine::value(MetricKind::pwr, sample).has_value());  // no state, no draw
  // On mains with nothing to measure the cell reads "AC": a reading, and an empty bar.
  sample.powerState = PowerState::acIdle();
  EXPECT_EQ(TrendLine::value(MetricKind::pwr, sample), 0.0);
}

TEST(TrendLine, NoSamplesDrawNothing) {
  EXPECT_TRUE(TrendLine::runs(MetricKind::cpu, SampleHistory(), band).empty());
}

TEST(TrendLine, AMinuteOfSecondsSpansTheBandOldestAtTheLeadingEdge) {
  SampleHistory history;
  for (int second = 0; second <= 60; ++second)
    history.record(100.0 + second, withCpu(0.5));
  const auto runs = TrendLine::runs(MetricKind::cpu, history, band);
  ASSERT_EQ(runs.size(), 1u);
  ASSERT_EQ(runs[0].size(), 61u);
  EXPECT_EQ(runs[0].front(), (Point{0.0, yOf(0.5)}));
  EXPECT_EQ(runs[0].back(), (Point{172.0, yOf(0.5)}));
  for (std::size_t i = 1; i < runs[0].size(); ++i) {
    EXPECT_NEAR(runs[0][i].x - runs[0][i - 1].x, 172.0 / 60.0, 1e-9) << i;
  }
}

TEST(TrendLine, AnEmptyBarLiesAtTheBottomAndAFullOneAtTheTopWithinTheBand) {
  const SampleHistory history = historyOf({
      {0.0, withCpu(0.0)},
      {1.0, withCpu(1.0)},
      {2.0, withCpu(-0.5)},
      {3.0, withCpu(2.0)},
  });
  const auto runs = TrendLine::runs(MetricKind::cpu, history, band);
  ASSERT_EQ(runs.size(), 1u);
  ASSERT_EQ(runs[0].size(), 4u);
  EXPECT_EQ(runs[0][0].y, band.maxY() - TrendLine::lineWidth / 2.0);
  EXPECT_EQ(runs[0][1].y, band.y + TrendLine::lineWidth / 2.0);
  EXPECT_EQ(runs[0][2].y, runs[0][0].y);  // held to the band
  EXPECT_EQ(runs[0][3].y, runs[0][1].y);
}

TEST(TrendLine, AnAbsentReadingBreaksTheLineInsteadOfDroppingToZero) {
  const SampleHistory history = historyOf({
      {0.0, withCpu(0.6)},
      {1.0, withCpu(0.6)},
      {2.0, withoutGpu(0.6)},
      {3.0, withoutGpu(0.6)},
      {4.0, withCpu(0.6)},
      {5.0, withCpu(0.6)},
  });
  const auto gpu = TrendLine::runs(MetricKind::gpu, history, band);
  ASSERT_EQ(lengths(gpu), (std::vector<std::size_t>{2, 2}));
  for (const auto& run : gpu) {
    for (const Point& point : run)
      EXPECT_EQ(point.y, yOf(0.6));
  }
  // The processor, read all along, runs on unbroken.
  EXPECT_EQ(lengths(TrendLine::runs(MetricKind::cpu, history, band)), std::vector<std::size_t>{6});
}

TEST(TrendLine, ALoneReadingBetweenGapsIsARunOfOnePoint) {
  const SampleHistory history = historyOf({
      {0.0, withoutGpu(0.2)},
      {1.0, withCpu(0.2)},
      {2.0, withoutGpu(0.2)},
  });
  EXPECT_EQ(lengths(TrendLine::runs(MetricKind::gpu, history, band)), std::vector<std::size_t>{1});
}

TEST(TrendLine, NeverAReadingNeverALine) {
  SampleHistory history;
  for (int i = 0; i < 20; ++i)
    history.record(i, withoutGpu(0.2));
  EXPECT_TRUE(TrendLine::runs(MetricKind::gpu, history, band).empty());
}

TEST(TrendLine, TheClosedPanelsSamplesFiveSecondsApartMakeOneLine) {
  SampleHistory history;
  // Two minutes at the closed rate: only the last minute is drawn, thirteen samples of it.
  for (int i = 0; i <= 24; ++i)
    history.record(5.0 * i, withCpu(0.1 * (i % 3)));
  const auto runs = TrendLine::runs(MetricKind::cpu, history, band);
  ASSERT_EQ(runs.size(), 1u);
  ASSERT_EQ(runs[0].size(), 13u);
  EXPECT_EQ(runs[0].front().x, 0.0);
  EXPECT_EQ(runs[0].back().x, 172.0);
  EXPECT_NEAR(runs[0][1].x, 172.0 / 12.0, 1e-9);
}

TEST(TrendLine, ATimeWithoutSamplesLongerThanTenSecondsBreaksTheLine) {
  const SampleHistory history = historyOf({
      {0.0, withCpu(0.3)},
      {10.0, withCpu(0.3)},  // ten seconds: still joined
      {20.5, withCpu(0.3)},  // more than ten: a break (the machine slept)
      {21.5, withCpu(0.3)},
  });
  EXPECT_EQ(lengths(TrendLine::runs(MetricKind::cpu, history, band)),
            (std::vector<std::size_t>{2, 2}));
}

TEST(TrendLine, OnlyTheLastMinuteIsDrawn) {
  const SampleHistory history = historyOf({
      {0.0, withCpu(0.3)},
      {55.0, withCpu(0.3)},
      {60.0, withCpu(0.3)},
      {61.0, withCpu(0.3)},
  });
  const auto runs = TrendLine::runs(MetricKind::cpu, history, band);
  ASSERT_EQ(lengths(runs), std::vector<std::size_t>{3});  // the sample 61 seconds old is left out
  EXPECT_NEAR(runs[0][0].x, 54.0 / 60.0 * 172.0, 1e-9);
}

}  // namespace
}  // namespace brimly
