#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/PlatformFactory.h"

namespace brimly::testing {

// The figures every port of a fake machine returns. Plain data: tests build one, change it
// between samples through `FakePlatform::change`, and compare.
struct FakeMachine {
  std::optional<CpuTicks> cpuTicks;  // nothing: the counters are refused
  MemoryReading memory;
  std::optional<DiskCapacities> disk;
  std::optional<std::vector<std::optional<PropertyDict>>> accelerators;
  std::optional<std::vector<std::optional<PropertyDict>>> powerSources;
  std::optional<PropertyDict> smartBattery;
  std::vector<RawTemperatureSensor> temperatureSensors;
  SensorNaming sensorNaming = SensorNaming::appleSilicon;
  bool energyAvailable = false;
  std::optional<std::vector<EnergyCounter>> energyCounters;
  double energyJoulesPerUnit = 1e-9;

  // Lets `busy` ticks of user time and `idle` ticks of idle time pass (wrapping like the real
  // 32-bit counters). Needs `cpuTicks`.
  void addCpuTicks(std::uint32_t busy, std::uint32_t idle);
  // Adds `units` to the energy counter of the channel named `channel`. Needs that channel.
  void addEnergy(const std::string& channel, std::int64_t units);

  // An Apple-silicon notebook on battery: 16 GiB memory, a 500 GB disk, one accelerator at 23 %,
  // a battery at 81 % draining 16.5 W, processor sensors up to 51 °C, four energy channels.
  static FakeMachine typicalLaptop();
  // A machine on which every reading fails or finds nothing.
  static FakeMachine bareMachine();
};

// How often each port was asked for its figures.
struct FakeReadCounts {
  int cpuTicks = 0;
  int memory = 0;
  int disk = 0;
  int accelerators = 0;
  int powerSources = 0;
  int smartBattery = 0;
  int temperatureSensors = 0;
  int energyCounters = 0;

  bool operator==(const FakeReadCounts&) const = default;
};

// A clock the test sets by hand.
class FakeClock final : public MonotonicClock {
 public:
  double nowSeconds() const override { return now_; }
  void setNow(double seconds) { now_ = seconds; }
  void advance(double seconds) { now_ += seconds; }

 private:
  double now_ = 0.0;
};

// A scriptable platform over one FakeMachine. Every port it makes reads the platform's current
// machine, so a change shows in the next reading of every reader made from it. Safe to read from
// a worker thread while the test thread changes the machine.
class FakePlatform final : public PlatformFactory {
 public:
  // Energy rates are measured against the platform's own FakeClock (`ownClock`).
  explicit FakePlatform(FakeMachine machine = FakeMachine::typicalLaptop());
  // Energy rates are measured against `clock`, which must outlive the platform and its readers.
  FakePlatform(FakeMachine machine, const MonotonicClock& clock);
  ~FakePlatform() override;

  FakeMachine machine() const;
  void setMachine(FakeMachine machine);
  void change(const std::function<void(FakeMachine&)>& edit);
  FakeReadCounts readCounts() const;
  FakeClock& ownClock() { return ownClock_; }
  // The platform's tick-reading spacing (0 unless set).
  void setTickReadingSpacingSeconds(double seconds) { tickReadingSpacing_ = seconds; }

  std::unique_ptr<CpuTicksPort> makeCpuTicksPort() const override;
  std::unique_ptr<MemoryPort> makeMemoryPort() const override;
  std::unique_ptr<DiskPort> makeDiskPort() const override;
  std::unique_ptr<AcceleratorPort> makeAcceleratorPort() const override;
  std::unique_ptr<PowerSourcePort> makePowerSourcePort() const override;
  std::unique_ptr<TemperatureSensorPort> makeTemperatureSensorPort() const override;
  std::unique_ptr<EnergyCounterPort> makeEnergyCounterPort() const override;
  const MonotonicClock& clock() const override;
  double tickReadingSpacingSeconds() const override { return tickReadingSpacing_; }

  struct State;

 private:
  std::shared_ptr<State> state_;
  FakeClock ownClock_;
  const MonotonicClock* clock_;
  double tickReadingSpacing_ = 0.0;
};

}  // namespace brimly::testing
