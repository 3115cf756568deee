#include "settingswindow/MetricListRules.h"

#include <gtest/gtest.h>

#include <limits>

#include "MetricKindNames.h"
#include "core/MetricOrderStore.h"

namespace brimly {
namespace {

using Kinds = std::vector<MetricKind>;
using MetricListRules::RowMove;

using namespace testing::kinds;

Kinds applied(const Kinds& order, const RowMove& move) {
  return MetricOrderStore::reordered(order, move.offsets, move.destination);
}

// Edge cases first.

TEST(MetricListRules, NothingIsHiddenWhenEveryKindIsShown) {
  EXPECT_TRUE(MetricListRules::hiddenKinds({pwr, temp, disk, ram, gpu, cpu}).empty());
}

TEST(MetricListRules, HiddenKindsComeInEnumerationOrderNotInTheOrderOfHiding) {
  // TEMP hidden first, then CPU, then GPU: the list still reads CPU, GPU, TEMP.
  EXPECT_EQ(MetricListRules::hiddenKinds({pwr, disk, ram}), (Kinds{cpu, gpu, temp}));
  EXPECT_EQ(MetricListRules::hiddenKinds({pwr}), (Kinds{cpu, gpu, ram, disk, temp}));
  EXPECT_EQ(MetricListRules::hiddenKinds({}), MetricKind::allCases());
}

TEST(MetricListRules, TemperatureBarIsEmptyAt30DegreesAndFullAt100) {
  MetricSample sample;
  sample.temperatureC = 30.0;
  EXPECT_EQ(MetricListRules::previewFill(temp, sample), 0.0);
  sample.temperatureC = 100.0;
  EXPECT_EQ(MetricListRules::previewFill(temp, sample), 1.0);
  sample.temperatureC = 65.0;
  EXPECT_DOUBLE_EQ(MetricListRules::previewFill(temp, sample), 0.5);
  sample.temperatureC = 12.0;
  EXPECT_EQ(MetricListRules::previewFill(temp, sample), 0.0);
  sample.temperatureC = 131.0;
  EXPECT_EQ(MetricListRules::previewFill(temp, sample), 1.0);
}

TEST(MetricListRules, PowerBarIsFullAt20Watts) {
  MetricSample sample;
  sample.systemPowerWatts = 20.0;
  EXPECT_EQ(MetricListRules::previewFill(pwr, sample), 1.0);
  sample.systemPowerWatts = 45.0;
  EXPECT_EQ(MetricListRules::previewFill(pwr, sample), 1.0);
  sample.systemPowerWatts = 5.0;
  EXPECT_DOUBLE_EQ(MetricListRules::previewFill(pwr, sample), 0.25);
  sample.systemPowerWatts = -3.0;
  EXPECT_EQ(MetricListRules::previewFill(pwr, sample), 0.0);
}

TEST(MetricListRules, AbsentReadingsGiveEmptyBars) {
  MetricSample sample;
  sample.cpu = 0.5;
  ASSERT_FALSE(sample.gpu);
  ASSERT_FALSE(sample.temperatureC);
  ASSERT_FALSE(sample.systemPowerWatts);
  EXPECT_EQ(MetricListRules::previewFill(gpu, sample), 0.0);
  EXPECT_EQ(MetricListRules::previewFill(temp, sample), 0.0);
  EXPECT_EQ(MetricListRules::previewFill(pwr, sample), 0.0);
}

TEST(MetricListRules, OnlyTheReadingsThatCanBeAbsentCanLeaveABarWithoutAReading) {
  const MetricSample empty;
  for (const MetricKind kind : {cpu, ram, disk}) {
    EXPECT_TRUE(MetricListRules::hasPreviewReading(kind, empty)) << kind.rawValue();
  }
  for (const MetricKind kind : {gpu, temp, pwr}) {
    EXPECT_FALSE(MetricListRules::hasPreviewReading(kind, empty)) << kind.rawValue();
  }
  MetricSample idle;
  idle.gpu = 0.0;
  idle.temperatureC = 20.0;
  idle.systemPowerWatts = 0.0;
  for (const MetricKind kind : {gpu, temp, pwr}) {
    EXPECT_TRUE(MetricListRules::hasPreviewReading(kind, idle)) << kind.rawValue();
    EXPECT_EQ(MetricListRules::previewFill(kind, idle), 0.0) << kind.rawValue();
  }
}

TEST(MetricListRules, GpuIsHeldToZeroToOne) {
  MetricSample sample;
  sample.gpu = 1.4;
  EXPECT_EQ(MetricListRules::previewFill(gpu, sample), 1.0);
  sample.gpu = -0.2;
  EXPECT_EQ(MetricListRules::previewFill(gpu, sample), 0.0);
  sample.gpu = 0.61;
  EXPECT_EQ(MetricListRules::previewFill(gpu, sample), 0.61);
}

TEST(MetricListRules, ProcessorMemoryAndDiskAreOnlyCappedFromAbove) {
  MetricSample sample;
  sample.cpu = 1.3;
  sample.memory = 2.0;
  sample.disk = 1.01;
  EXPECT_EQ(MetricListRules::previewFill(cpu, sample), 1.0);
  EXPECT_EQ(MetricListRules::previewFill(ram, sample), 1.0);
  EXPECT_EQ(MetricListRules::previewFill(disk, sample), 1.0);
  // The readings are fractions already: a value below 0 passes through untouched.
  sample.cpu = -0.25;
  sample.memory = -0.5;
  sample.disk = -1.0;
  EXPECT_EQ(MetricListRules::previewFill(cpu, sample), -0.25);
  EXPECT_EQ(MetricListRules::previewFill(ram, sample), -0.5);
  EXPECT_EQ(MetricListRules::previewFill(disk, sample), -1.0);
}

TEST(MetricListRules, FractionsShowAsTheyAre) {
  MetricSample sample;
  sample.cpu = 0.42;
  sample.memory = 0.53;
  sample.disk = 0.51;
  EXPECT_EQ(MetricListRules::previewFill(cpu, sample), 0.42);
  EXPECT_EQ(MetricListRules::previewFill(ram, sample), 0.53);
  EXPECT_EQ(MetricListRules::previewFill(disk, sample), 0.51);
}

TEST(MetricListRules, TheOnlyShownMetricCannotBeHidden) {
  EXPECT_FALSE(MetricListRules::canHide({temp}));
  EXPECT_FALSE(MetricListRules::isSwitchEnabled(true, {temp}));
  // A hidden row can always be switched on.
  EXPECT_TRUE(MetricListRules::isSwitchEnabled(false, {temp}));
}

TEST(MetricListRules, WithTwoShownEitherCanBeHidden) {
  EXPECT_TRUE(MetricListRules::canHide({temp, cpu}));
  EXPECT_TRUE(MetricListRules::isSwitchEnabled(true, {temp, cpu}));
  EXPECT_TRUE(MetricListRules::isSwitchEnabled(true, MetricKind::allCases()));
}

TEST(MetricListRules, TheTopRowCannotMoveUpNorTheBottomRowDown) {
  EXPECT_EQ(MetricListRules::moveUp(0, 4), std::nullopt);
  EXPECT_EQ(MetricListRules::moveDown(3, 4), std::nullopt);
  EXPECT_EQ(MetricListRules::moveUp(0, 1), std::nullopt);
  EXPECT_EQ(MetricListRules::moveDown(0, 1), std::nullopt);
  EXPECT_EQ(MetricListRules::moveUp(4, 4), std::nullopt);
  EXPECT_EQ(MetricListRules::moveDown(4, 4), std::nullopt);
}

TEST(MetricListRules, MovingUpTakesTheGapBeforeThePreviousRow) {
  const auto move = MetricListRules::moveUp(2, 6);
  ASSERT_TRUE(move);
  EXPECT_EQ(*move, (RowMove{{2}, 1}));
  EXPECT_EQ(applied(MetricKind::allCases(), *move), (Kinds{cpu, ram, gpu, disk, temp, pwr}));
}

TEST(MetricListRules, MovingDownTakesTheGapAfterTheNextRow) {
  const auto move = MetricListRules::moveDown(2, 6);
  ASSERT_TRUE(move);
  EXPECT_EQ(*move, (RowMove{{2}, 4}));
  EXPECT_EQ(applied(MetricKind::allCases(), *move), (Kinds{cpu, gpu, disk, ram, temp, pwr}));
  const auto last = MetricListRules::moveDown(4, 6);
  ASSERT_TRUE(last);
  EXPECT_EQ(applied(MetricKind::allCases(), *last), (Kinds{cpu, gpu, ram, disk, pwr, temp}));
}

TEST(MetricListRules, ADropWhereTheRowStartedMovesNothing) {
  EXPECT_EQ(MetricListRules::dragMove(2, 2, 6), std::nullopt);
  EXPECT_EQ(MetricListRules::dragMove(2, 3, 6), std::nullopt);
}

TEST(MetricListRules, ADropOutOfRangeMovesNothing) {
  EXPECT_EQ(MetricListRules::dragMove(6, 0, 6), std::nullopt);
  EXPECT_EQ(MetricListRules::dragMove(0, 7, 6), std::nullopt);
}

TEST(MetricListRules, ADropIsTheListMoveToTheGap) {
  const Kinds order = MetricKind::allCases();
  const auto down = MetricListRules::dragMove(0, 3, 6);
  ASSERT_TRUE(down);
  EXPECT_EQ(*down, (RowMove{{0}, 3}));
  EXPECT_EQ(applied(order, *down), (Kinds{gpu, ram, cpu, disk, temp, pwr}));
  const auto toEnd = MetricListRules::dragMove(0, 6, 6);
  ASSERT_TRUE(toEnd);
  EXPECT_EQ(applied(order, *toEnd), (Kinds{gpu, ram, disk, temp, pwr, cpu}));
  const auto toTop = MetricListRules::dragMove(5, 0, 6);
  ASSERT_TRUE(toTop);
  EXPECT_EQ(applied(order, *toTop), (Kinds{pwr, cpu, gpu, ram, disk, temp}));
}

// Properties.

TEST(MetricListRules, EveryKindIsEitherShownOrHiddenNeverBoth) {
  // Every subset of the six kinds, in enumeration order.
  for (unsigned mask = 0; mask < 64; ++mask) {
    Kinds shown;
    for (const MetricKind kind : MetricKind::allCases()) {
      if (mask & (1u << kind.value())) shown.push_back(kind);
    }
    const Kinds hidden = MetricListRules::hiddenKinds(shown);
    EXPECT_EQ(shown.size() + hidden.size(), 6u);
    for (const MetricKind kind : hidden) {
      EXPECT_EQ(std::find(shown.begin(), shown.end(), kind), shown.end());
    }
    EXPECT_TRUE(std::is_sorted(hidden.begin(), hidden.end(),
                               [](MetricKind a, MetricKind b) { return a.value() < b.value(); }));
  }
}

TEST(MetricListRules, AKeyboardMoveUpThenDownRestoresTheOrder) {
  const Kinds order{temp, cpu, pwr, ram};
  for (std::size_t i = 1; i < order.size(); ++i) {
    const Kinds up = applied(order, *MetricListRules::moveUp(i, order.size()));
    EXPECT_EQ(up[i - 1], order[i]);
    EXPECT_EQ(applied(up, *MetricListRules::moveDown(i - 1, order.size())), order);
  }
}

TEST(MetricListRules, FillsOfOptionalReadingsStayWithinTheBar) {
  MetricSample sample;
  for (double reading :
       {-50.0, 0.0, 29.9, 30.0, 64.9, 99.9, 100.0, 150.0, std::numeric_limits<double>::max()}) {
    sample.temperatureC = reading;
    sample.systemPowerWatts = reading;
    sample.gpu = reading / 100.0;
    for (const MetricKind kind : {gpu, temp, pwr}) {
      const double fill = MetricListRules::previewFill(kind, sample);
      EXPECT_GE(fill, 0.0) << kind.rawValue() << " at " << reading;
      EXPECT_LE(fill, 1.0) << kind.rawValue() << " at " << reading;
    }
  }
}

}  // namespace
}  // namespace brimly
