#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "core/MetricKind.h"
#include "platform/PlatformFactory.h"
#include "sampling/CpuLoad.h"
#include "sampling/DiskUsage.h"
#include "sampling/EnergyReader.h"
#include "sampling/MetricSample.h"
#include "sampling/ReadingThrottle.h"
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
  // first call and every tenth; the other calls repeat the last good figures. The processor ticks
  // are not read again sooner than the platform's tick-reading spacing after the last reading (a
  // timer restarted at once, say): such a call repeats the last processor figure.
  MetricSample sample();

  // The metrics this machine has no source for at all (`MetricSources`), as the first call of
  // `sample()` found them; nothing before it.
  const std::optional<std::vector<MetricKind>>& kindsWithoutSource() const {
    return kindsWithoutSource_;
  }

  // The single readings `sample()` is made of.
  double readCPU();
  std::optional<double> readGPU();
  void readMemory(MetricSample& sample);
  void readDisk();
  // Returns (watts, state) and sets the sample's battery percent when the source gives one.
  std::pair<double, PowerState> readPower(MetricSample& sample);
  std::int64_t readBatteryVoltageMV();

  std::int64_t sampleCounter() const { return sampleCounter_; }
  std::int64_t lastDiskUsed() const { return lastDisk_.usedBytes; }
  std::int64_t lastDiskTotal() const { return lastDisk_.totalBytes; }
  SensorReader& sensors() { return sensors_; }
  EnergyReader& energy() { return energy_; }

 private:
  std::unique_ptr<CpuTicksPort> cpuTicks_;
  std::unique_ptr<MemoryPort> memory_;
  std::unique_ptr<DiskPort> disk_;
  std::unique_ptr<AcceleratorPort> accelerators_;
  std::unique_ptr<PowerSourcePort> powerSources_;
  const MonotonicClock& clock_;
  ReadingThrottle cpuThrottle_;
  CpuLoad cpuLoad_;
  double lastCpu_ = 0.0;
  std::int64_t sampleCounter_ = 0;
  SensorReader sensors_;
  EnergyReader energy_;
  DiskUsage lastDisk_;
  // Whether the accelerators of the latest GPU reading hold a source of the GPU load.
  bool gpuSource_ = false;
  std::optional<std::vector<MetricKind>> kindsWithoutSource_;
};

}  // namespace brimly
