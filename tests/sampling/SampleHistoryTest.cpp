#include "sampling/SampleHistory.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

MetricSample withCpu(double cpu) {
  MetricSample sample;
  sample.cpu = cpu;
  return sample;
}

TEST(SampleHistoryTest, StartsEmpty) {
  const SampleHistory history;
  EXPECT_TRUE(history.empty());
  EXPECT_EQ(history.size(), 0u);
  EXPECT_FALSE(history.newestTime().has_value());
}

TEST(SampleHistoryTest, HoldsAMinuteAtOneSampleASecondWithBothEnds) {
  EXPECT_EQ(SampleHistory::windowSeconds, 60.0);
  EXPECT_EQ(SampleHistory::capacity, 61u);
}

TEST(SampleHistoryTest, KeepsTheSamplesOldestFirstWithTheirTimes) {
  SampleHistory history;
  history.record(10.0, withCpu(0.1));
  history.record(11.0, withCpu(0.2));
  history.record(12.5, withCpu(0.3));
  ASSERT_EQ(history.size(), 3u);
  EXPECT_EQ(history.at(0), (TimedSample{10.0, withCpu(0.1)}));
  EXPECT_EQ(history.at(1), (TimedSample{11.0, withCpu(0.2)}));
  EXPECT_EQ(history.at(2), (TimedSample{12.5, withCpu(0.3)}));
  EXPECT_EQ(history.newestTime(), 12.5);
}

TEST(SampleHistoryTest, AFullRingPushesOutTheOldestAndNeverGrows) {
  SampleHistory history;
  const std::size_t recorded = SampleHistory::capacity * 3 + 7;
  for (std::size_t i = 0; i < recorded; ++i) {
    history.record(static_cast<double>(i), withCpu(static_cast<double>(i) / 1000.0));
    EXPECT_LE(history.size(), SampleHistory::capacity);
  }
  ASSERT_EQ(history.size(), SampleHistory::capacity);
  // The newest `capacity` samples, in the order they were taken.
  const std::size_t first = recorded - SampleHistory::capacity;
  for (std::size_t i = 0; i < history.size(); ++i) {
    EXPECT_EQ(history.at(i).takenAt, static_cast<double>(first + i)) << i;
    EXPECT_EQ(history.at(i).sample.cpu, static_cast<double>(first + i) / 1000.0) << i;
  }
  EXPECT_EQ(history.newestTime(), static_cast<double>(recorded - 1));
}

TEST(SampleHistoryTest, AnAbsentReadingIsKeptAbsent) {
  MetricSample withoutGpu = withCpu(0.5);
  withoutGpu.gpu.reset();
  withoutGpu.temperatureC.reset();
  MetricSample withGpu = withCpu(0.5);
  withGpu.gpu = 0.25;
  SampleHistory history;
  history.record(1.0, withGpu);
  history.record(2.0, withoutGpu);
  EXPECT_EQ(history.at(0).sample.gpu, 0.25);
  EXPECT_FALSE(history.at(1).sample.gpu.has_value());
  EXPECT_FALSE(history.at(1).sample.temperatureC.has_value());
}

}  // namespace
}  // namespace brimly
