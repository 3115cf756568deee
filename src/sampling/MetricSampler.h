#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

#include "platform/PlatformFactory.h"
#include "sampling/CpuLoad.h"
#include "sampling/EnergyReader.h"
#include "sampling/MetricSample.h"
#include "sampling/SensorReader.h"

namespace brimly {

// Turns one call of `sample()` into one complete MetricSample. Keeps what a reading needs between
// calls: the previous processor counters, the call count and the last disk figures. Makes its own
// readers from the platform, so it shares nothing with other samplers; after construction it is
// used from one thread at a time (the monitor's sampling thread).
class MetricSampler {
 public:
  // `platform` is only used here; its clock must outlive the sampler.
  explicit MetricSampler(const PlatformFactory& platform);
  ~MetricSampler();
  MetricSampler(const MetricSampler&) = delete;
  MetricSampler& operator=(const MetricSampler&) = delete;

  // One snapshot. A reading the platform cannot supply keeps its default. The disk is read on the
  // first call and every tenth; the other calls repeat the last good figures.
  MetricSample sample();

  // The single readings `sample()` is made of.
  double readCPU();
  std::optional<double> readGPU();
  void readMemory(MetricSample& sample);
  void readDisk();
  // Returns (watts, state) and sets the sample's battery percent when the source gives one.
  std::pair<double, PowerState> readPower(MetricSample& sample);
  std::int64_t readBatteryVoltageMV();

  std::int64_t sampleCounter() const { return sampleCounter_; }
  std::int64_t lastDiskUsed() const { return lastDiskUsed_; }
  std::int64_t lastDiskTotal() const { return lastDiskTotal_; }
  SensorReader& sensors() { return sensors_; }
  EnergyReader& energy() { return energy_; }

 private:
  std::unique_ptr<CpuTicksPort> cpuTicks_;
  std::unique_ptr<MemoryPort> memory_;
  std::unique_ptr<DiskPort> disk_;
  std::unique_ptr<AcceleratorPort> accelerators_;
  std::unique_ptr<PowerSourcePort> powerSources_;
  CpuLoad cpuLoad_;
  std::int64_t sampleCounter_ = 0;
  SensorReader sensors_;
  EnergyReader energy_;
  std::int64_t lastDiskUsed_ = 0;
  std::int64_t lastDiskTotal_ = 0;
};

}  // namespace brimly
