#include "platform/SystemPlatform.h"
#include "platform/macos/MacAcceleratorPort.h"
#include "platform/macos/MacCpuTicksPort.h"
#include "platform/macos/MacDiskPort.h"
#include "platform/macos/MacEnergyCounterPort.h"
#include "platform/macos/MacMemoryPort.h"
#include "platform/macos/MacMonotonicClock.h"
#include "platform/macos/MacPowerSourcePort.h"
#include "platform/macos/MacTemperatureSensorPort.h"

namespace brimly {
namespace {

// Every call makes fresh readers, so that each owner (and thread) has its own.
class MacSystemPlatform final : public PlatformFactory {
 public:
  std::unique_ptr<CpuTicksPort> makeCpuTicksPort() const override { return makeMacCpuTicksPort(); }
  std::unique_ptr<MemoryPort> makeMemoryPort() const override { return makeMacMemoryPort(); }
  std::unique_ptr<DiskPort> makeDiskPort() const override { return makeMacDiskPort(); }
  std::unique_ptr<AcceleratorPort> makeAcceleratorPort() const override {
    return makeMacAcceleratorPort();
  }
  std::unique_ptr<PowerSourcePort> makePowerSourcePort() const override {
    return makeMacPowerSourcePort();
  }
  std::unique_ptr<TemperatureSensorPort> makeTemperatureSensorPort() const override {
    return makeMacTemperatureSensorPort();
  }
  std::unique_ptr<EnergyCounterPort> makeEnergyCounterPort() const override {
    return makeMacEnergyCounterPort();
  }
  const MonotonicClock& clock() const override { return *clock_; }
  // The kernel lets at least two host_statistics calls of a kind through in any second and answers
  // the rest from a cache: readings at least half a second apart are always live.
  double tickReadingSpacingSeconds() const override { return 0.5; }

 private:
  std::unique_ptr<MonotonicClock> clock_ = makeMacMonotonicClock();
};

}  // namespace

std::unique_ptr<PlatformFactory> makeSystemPlatform() {
  return std::make_unique<MacSystemPlatform>();
}

}  // namespace brimly
