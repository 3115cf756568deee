#include "usage/MetricReadout.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(MetricReadout, NamesTheMetricAndItsValue) {
  MetricSample sample;
  sample.cpu = 0.312;
  const MetricReadout readout =
      MetricReadout::of(MetricCellContent::of(MetricKind::cpu, sample, false));
  EXPECT_EQ(readout.name, "CPU 31%");
  EXPECT_EQ(readout.description, "");
}

TEST(MetricReadout, ADetailLineIsItsDescription) {
  MetricSample sample;
  sample.memory = 0.5;
  sample.memoryUsedBytes = 8ull << 30;
  sample.memoryTotalBytes = 16ull << 30;
  const MetricCellContent cell = MetricCellContent::of(MetricKind::ram, sample, false);
  const MetricReadout readout = MetricReadout::of(cell);
  EXPECT_EQ(readout.name, "RAM 50%");
  EXPECT_EQ(readout.description, cell.secondary);
  EXPECT_FALSE(readout.description.empty());
}

TEST(MetricReadout, AMissingReadingReadsAsTheDashTheCellShows) {
  const MetricReadout readout =
      MetricReadout::of(MetricCellContent::of(MetricKind::temp, MetricSample{}, false));
  EXPECT_EQ(readout.name, "TEMP \u2014");
  EXPECT_EQ(readout.description, "");
}

}  // namespace
}  // namespace brimly
