#include "sampling/MetricSampler.h"

#include <limits>

#include "core/Precondition.h"
#include "sampling/DiskUsage.h"
#include "sampling/GpuLoad.h"
#include "sampling/MemoryUsage.h"
#include "sampling/MetricSources.h"
#include "sampling/PowerReading.h"

namespace brimly {

namespace {

void applyMemory(const MemoryReading& reading, MetricSample& sample) {
  if (const auto usage = MemoryUsage::from(reading)) {
    sample.memoryUsedBytes = usage->usedBytes;
    sample.memoryTotalBytes = usage->totalBytes;
    sample.memory = usage->fraction;
  }
}

}  // namespace

MetricSampler::MetricSampler(const PlatformFactory& platform)
    : cpuTicks_(platform.makeCpuTicksPort()),
      memory_(platform.makeMemoryPort()),
      disk_(platform.makeDiskPort()),
      accelerators_(platform.makeAcceleratorPort()),
      powerSources_(platform.makePowerSourcePort()),
      clock_(platform.clock()),
      cpuThrottle_(platform.tickReadingSpacingSeconds()),
      sensors_(platform.makeTemperatureSensorPort()),
      energy_(platform.makeEnergyCounterPort(), platform.clock()) {}

MetricSampler::~MetricSampler() = default;

MetricSample MetricSampler::sample() {
  BRIMLY_REQUIRE(sampleCounter_ < std::numeric_limits<std::int64_t>::max(),
                 "sample counter overflow");
  ++sampleCounter_;
  MetricSample sample;
  if (cpuThrottle_.admit(clock_.nowSeconds())) lastCpu_ = readCPU();
  sample.cpu = lastCpu_;
  sample.gpu = readGPU();
  // Memory and swap come from one port call: some systems serve both from one file.
  const MemoryReading memory = memory_ ? memory_->readMemory() : MemoryReading{};
  applyMemory(memory, sample);
  if (memory.swap) {
    sample.swapUsedBytes = memory.swap->usedBytes;
    sample.swapTotalBytes = memory.swap->totalBytes;
  }
  std::tie(sample.powerWatts, sample.powerState) = readPower(sample);
  sample.temperatureC = sensors_.currentCPUTemperature();
  sample.systemPowerWatts = energy_.sampleSystemPower();
  if (DiskUsage::isRefreshCall(sampleCounter_)) readDisk();
  sample.diskUsedBytes = lastDisk_.usedBytes;
  sample.diskTotalBytes = lastDisk_.totalBytes;
  sample.disk = lastDisk_.fraction();
  if (!kindsWithoutSource_) {
    kindsWithoutSource_ = MetricSources::withoutSource(sample, gpuSource_, energy_.hasCounters());
  }
  return sample;
}

double MetricSampler::readCPU() {
  return cpuLoad_.update(cpuTicks_ ? cpuTicks_->readCpuTicks() : std::nullopt);
}

std::optional<double> MetricSampler::readGPU() {
  if (!accelerators_) return std::nullopt;
  const auto services = accelerators_->readAcceleratorServices();
  // Asked only until the first sample has said what the machine has.
  if (!kindsWithoutSource_) gpuSource_ = GpuLoad::hasSource(services);
  return GpuLoad::fromServices(services);
}

void MetricSampler::readMemory(MetricSample& sample) {
  if (memory_) applyMemory(memory_->readMemory(), sample);
}

void MetricSampler::readDisk() {
  if (!disk_) return;
  if (const auto usage = DiskUsage::from(disk_->readDiskCapacities())) lastDisk_ = *usage;
}

std::pair<double, PowerState> MetricSampler::readPower(MetricSample& sample) {
  if (!powerSources_) return {0.0, PowerState::unknown()};
  const PowerReading reading = PowerReading::fromSources(
      powerSources_->readPowerSourceDescriptions(), [this] { return readBatteryVoltageMV(); });
  if (reading.batteryPercent) sample.batteryPercent = reading.batteryPercent;
  return {reading.watts, reading.state};
}

std::int64_t MetricSampler::readBatteryVoltageMV() {
  if (!powerSources_) return 0;
  return PowerReading::batteryVoltageMV(powerSources_->readSmartBatteryVoltage());
}

}  // namespace brimly
