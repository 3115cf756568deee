#include "sampling/GpuLoad.h"

#include <gtest/gtest.h>

#include <limits>

namespace brimly {
namespace {

using Services = std::vector<std::optional<PropertyDict>>;

PropertyDict service(PropertyDict statistics) {
  return PropertyDict{{"IOClass", "AGXAccelerator"},
                      {"PerformanceStatistics", std::move(statistics)}};
}

TEST(GpuLoad, BusyAboveOneHundredIsClampedToOne) {
  EXPECT_EQ(GpuLoad::fromStatistics(PropertyDict{{"GPU Busy", 250}}), 1.0);
}

TEST(GpuLoad, EarlierKeyWinsOverLaterOnes) {
  EXPECT_DOUBLE_EQ(
      *GpuLoad::fromStatistics(PropertyDict{{"GPU Busy", 90}, {"Device Utilization %", 37}}), 0.37);
  EXPECT_DOUBLE_EQ(
      *GpuLoad::fromStatistics(PropertyDict{{"GPU Core Utilization", 12}, {"GPU Activity(%)", 64}}),
      0.64);
}

TEST(GpuLoad, FloatValueIsTakenWhenTheValueIsNoInteger) {
  EXPECT_DOUBLE_EQ(*GpuLoad::fromStatistics(PropertyDict{{"GPU Activity(%)", 42.5}}), 0.425);
}

TEST(GpuLoad, KeyWithoutANumberPassesToTheNextKey) {
  EXPECT_DOUBLE_EQ(*GpuLoad::fromStatistics(PropertyDict{{"Device Utilization %", "busy"},
                                                         {"GPU Activity(%)", true},
                                                         {"GPU Core Utilization", 15}}),
                   0.15);
  EXPECT_DOUBLE_EQ(
      *GpuLoad::fromStatistics(PropertyDict{
          {"Device Utilization %", std::numeric_limits<double>::quiet_NaN()}, {"GPU Busy", 8}}),
      0.08);
}

TEST(GpuLoad, StatisticsWithoutAnyKeyGiveNothing) {
  EXPECT_FALSE(GpuLoad::fromStatistics(PropertyDict{{"Renderer Utilization %", 50}}).has_value());
}

TEST(GpuLoad, NegativePercentIsClampedToZero) {
  EXPECT_EQ(GpuLoad::fromStatistics(PropertyDict{{"GPU Busy", -5}}), 0.0);
}

TEST(GpuLoad, NoAcceleratorServiceGivesNothingRatherThanZero) {
  EXPECT_FALSE(GpuLoad::fromServices(Services{}).has_value());
  EXPECT_FALSE(GpuLoad::fromServices(std::nullopt).has_value());
}

TEST(GpuLoad, ServicesAreTriedInOrderUntilOneYieldsANumber) {
  const Services services{
      std::nullopt,                                                 // properties unreadable
      PropertyDict{{"IOClass", "IOAccelerator"}},                   // no statistics
      PropertyDict{{"PerformanceStatistics", "not a dictionary"}},  // wrong type
      service(PropertyDict{{"Renderer Utilization %", 80}}),        // no known key
      service(PropertyDict{{"Device Utilization %", 23}}),
      service(PropertyDict{{"Device Utilization %", 99}}),
  };
  EXPECT_DOUBLE_EQ(*GpuLoad::fromServices(services), 0.23);
}

TEST(GpuLoad, ASourceIsAServiceWithANumberOrOneAsleep) {
  EXPECT_TRUE(GpuLoad::hasSource(Services{service(PropertyDict{{"GPU Busy", 0}})}));
  // A discrete GPU asleep gives no figure until it wakes.
  for (const char* status : {"suspended", "suspending"}) {
    EXPECT_TRUE(GpuLoad::hasSource(
        Services{PropertyDict{{"IOClass", "nvidia"}, {"Runtime Status", status}}}))
        << status;
  }
}

TEST(GpuLoad, AcceleratorsAwakeWithoutAFigureAreNoSource) {
  // An NVIDIA card whose driver's library is missing, or no accelerator at all.
  EXPECT_FALSE(
      GpuLoad::hasSource(Services{PropertyDict{{"IOClass", "nvidia"}, {"Runtime Status", "active"}},
                                  PropertyDict{{"IOClass", "amdgpu"}}, std::nullopt}));
  EXPECT_FALSE(GpuLoad::hasSource(Services{}));
  EXPECT_FALSE(GpuLoad::hasSource(std::nullopt));
}

TEST(GpuLoad, ServicesWithoutAnyNumberGiveNothing) {
  EXPECT_FALSE(
      GpuLoad::fromServices(Services{service(PropertyDict{{"In use system memory", 1024}})})
          .has_value());
}

}  // namespace
}  // namespace brimly
