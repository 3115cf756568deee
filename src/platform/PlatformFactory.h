#pragma once

#include <memory>

#include "platform/AcceleratorPort.h"
#include "platform/CpuTicksPort.h"
#include "platform/DiskPort.h"
#include "platform/EnergyCounterPort.h"
#include "platform/MemoryPort.h"
#include "platform/MonotonicClock.h"
#include "platform/PowerSourcePort.h"
#include "platform/TemperatureSensorPort.h"

namespace brimly {

// Makes fresh readers of the system's counters. Every reader owner (a sampler, each section of the
// diagnostic report) gets instances of its own, so that no reader is shared between threads.
class PlatformFactory {
 public:
  virtual ~PlatformFactory() = default;
  virtual std::unique_ptr<CpuTicksPort> makeCpuTicksPort() const = 0;
  virtual std::unique_ptr<MemoryPort> makeMemoryPort() const = 0;
  virtual std::unique_ptr<DiskPort> makeDiskPort() const = 0;
  virtual std::unique_ptr<AcceleratorPort> makeAcceleratorPort() const = 0;
  virtual std::unique_ptr<PowerSourcePort> makePowerSourcePort() const = 0;
  virtual std::unique_ptr<TemperatureSensorPort> makeTemperatureSensorPort() const = 0;
  virtual std::unique_ptr<EnergyCounterPort> makeEnergyCounterPort() const = 0;
  // The clock that energy rates are measured against; lives as long as the factory.
  virtual const MonotonicClock& clock() const = 0;
  // The shortest time, by `clock()`, between two readings of the processor ticks that the system
  // answers afresh; a reading sooner gets a copy of an earlier answer (macOS keeps to a few live
  // answers a second), so a sampler repeats its last figure instead of asking. 0: no such limit.
  virtual double tickReadingSpacingSeconds() const { return 0.0; }
};

}  // namespace brimly
