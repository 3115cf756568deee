#include "FakePlatform.h"

#include <mutex>
#include <stdexcept>
#include <utility>

namespace brimly::testing {

struct FakePlatform::State {
  mutable std::mutex mutex;
  FakeMachine machine;
  FakeReadCounts counts;

  // Runs `read` on the machine under the lock, counting the read in `counter`.
  template <typename Read>
  auto read(int FakeReadCounts::*counter, Read&& reader) {
    std::lock_guard lock(mutex);
    ++(counts.*counter);
    return reader(machine);
  }
};

namespace {

using State = FakePlatform::State;

class FakeCpuTicksPort final : public CpuTicksPort {
 public:
  explicit FakeCpuTicksPort(std::shared_ptr<State> state) : state_(std::move(state)) {}
  std::optional<CpuTicks> readCpuTicks() override {
    return state_->read(&FakeReadCounts::cpuTicks, [](const FakeMachine& m) { return m.cpuTicks; });
  }

 private:
  std::shared_ptr<State> state_;
};

class FakeMemoryPort final : public MemoryPort {
 public:
  explicit FakeMemoryPort(std::shared_ptr<State> state) : state_(std::move(state)) {}
  MemoryReading readMemory() override {
    return state_->read(&FakeReadCounts::memory, [](const FakeMachine& m) { return m.memory; });
  }

 private:
  std::shared_ptr<State> state_;
};

class FakeDiskPort final : public DiskPort {
 public:
  explicit FakeDiskPort(std::shared_ptr<State> state) : state_(std::move(state)) {}
  std::optional<DiskCapacities> readDiskCapacities() override {
    return state_->read(&FakeReadCounts::disk, [](const FakeMachine& m) { return m.disk; });
  }

 private:
  std::shared_ptr<State> state_;
};

class FakeAcceleratorPort final : public AcceleratorPort {
 public:
  explicit FakeAcceleratorPort(std::shared_ptr<State> state) : state_(std::move(state)) {}
  std::optional<std::vector<std::optional<PropertyDict>>> readAcceleratorServices() override {
    return state_->read(&FakeReadCounts::accelerators,
                        [](const FakeMachine& m) { return m.accelerators; });
  }

 private:
  std::shared_ptr<State> state_;
};

class FakePowerSourcePort final : public PowerSourcePort {
 public:
  explicit FakePowerSourcePort(std::shared_ptr<State> state) : state_(std::move(state)) {}
  std::optional<std::vector<std::optional<PropertyDict>>> readPowerSourceDescriptions() override {
    return state_->read(&FakeReadCounts::powerSources,
                        [](const FakeMachine& m) { return m.powerSources; });
  }
  std::optional<PropertyDict> readSmartBatteryProperties() override {
    return state_->read(&FakeReadCounts::smartBattery,
                        [](const FakeMachine& m) { return m.smartBattery; });
  }

 private:
  std::shared_ptr<State> state_;
};

class FakeTemperatureSensorPort final : public TemperatureSensorPort {
 public:
  explicit FakeTemperatureSensorPort(std::shared_ptr<State> state) : state_(std::move(state)) {}
  std::vector<RawTemperatureSensor> readTemperatureSensors() override {
    return state_->read(&FakeReadCounts::temperatureSensors,
                        [](const FakeMachine& m) { return m.temperatureSensors; });
  }
  SensorNaming naming() const override {
    std::lock_guard lock(state_->mutex);
    return state_->machine.sensorNaming;
  }

 private:
  std::shared_ptr<State> state_;
};

class FakeEnergyCounterPort final : public EnergyCounterPort {
 public:
  explicit FakeEnergyCounterPort(std::shared_ptr<State> state) : state_(std::move(state)) {}
  bool isAvailable() const override {
    std::lock_guard lock(state_->mutex);
    return state_->machine.energyAvailable;
  }
  std::optional<std::vector<EnergyCounter>> readCounters() override {
    return state_->read(&FakeReadCounts::energyCounters, [](const FakeMachine& m) {
      return m.energyAvailable ? m.energyCounters : std::nullopt;
    });
  }
  double joulesPerUnit() const override {
    std::lock_guard lock(state_->mutex);
    return state_->machine.energyJoulesPerUnit;
  }

 private:
  std::shared_ptr<State> state_;
};

}  // namespace

void FakeMachine::addCpuTicks(std::uint32_t busy, std::uint32_t idle) {
  if (!cpuTicks) throw std::logic_error("the fake machine has no processor counters");
  cpuTicks->user += busy;  // unsigned: wraps like the real counters
  cpuTicks->idle += idle;
}

void FakeMachine::addEnergy(const std::string& channel, std::int64_t units) {
  if (energyCounters) {
    for (auto& counter : *energyCounters) {
      if (counter.channel == channel) {
        counter.value += units;
        return;
      }
    }
  }
  throw std::logic_error("the fake machine has no energy channel " + channel);
}

FakeMachine FakeMachine::typicalLaptop() {
  FakeMachine machine;
  machine.cpuTicks = CpuTicks{100'000, 50'000, 800'000, 1'000};
  machine.memory.vm = VmStatistics{400'000, 150'000, 50'000, 300'000, 100'000};
  machine.memory.pageSize = 16'384;
  machine.memory.physicalBytes = 17'179'869'184;  // 16 GiB
  machine.memory.swap = SwapUsage{2'147'483'648, 536'870'912};
  machine.disk = DiskCapacities{300'000'000'000, 494'384'795'648};
  machine.accelerators = std::vector<std::optional<PropertyDict>>{
      PropertyDict{{"IOClass", "AGXAcceleratorG13X"},
                   {"PerformanceStatistics",
                    PropertyDict{{"Device Utilization %", 23}, {"Renderer Utilization %", 20}}}}};
  machine.powerSources =
      std::vector<std::optional<PropertyDict>>{PropertyDict{{"Name", "InternalBattery-0"},
                                                            {"Power Source State", "Battery Power"},
                                                            {"Is Charging", false},
                                                            {"Current", -1500},
                                                            {"Voltage", 11000},
                                                            {"Current Capacity", 81},
                                                            {"Max Capacity", 100}}};
  machine.smartBattery =
      PropertyDict{{"Voltage", 11000},  {"Amperage", -1500},      {"InstantAmperage", -1480},
                   {"CycleCount", 112}, {"DesignCapacity", 4382}, {"MaxCapacity", 4101}};
  machine.temperatureSensors = {{"PMU tdie1", 51.0},
                                {"PMU tp3s", 48.2},
                                {"gas gauge battery", 31.0},
                                {"NAND CH0 temp", 40.0}};
  machine.sensorNaming = SensorNaming::appleSilicon;
  machine.energyAvailable = true;
  machine.energyCounters = std::vector<EnergyCounter>{{"CPU Energy", 5'000'000'000, 0},
                                                      {"GPU Energy", 1'000'000'000, 0},
                                                      {"ANE", 0, 0},
                                                      {"DRAM Energy", 2'000'000'000, 0}};
  machine.energyJoulesPerUnit = 1e-9;
  return machine;
}

FakeMachine FakeMachine::bareMachine() {
  return FakeMachine{};
}

FakePlatform::FakePlatform(FakeMachine machine)
    : state_(std::make_shared<State>()), clock_(&ownClock_) {
  state_->machine = std::move(machine);
}

FakePlatform::FakePlatform(FakeMachine machine, const MonotonicClock& clock)
    : state_(std::make_shared<State>()), clock_(&clock) {
  state_->machine = std::move(machine);
}

FakePlatform::~FakePlatform() = default;

FakeMachine FakePlatform::machine() const {
  std::lock_guard lock(state_->mutex);
  return state_->machine;
}

void FakePlatform::setMachine(FakeMachine machine) {
  std::lock_guard lock(state_->mutex);
  state_->machine = std::move(machine);
}

void FakePlatform::change(const std::function<void(FakeMachine&)>& edit) {
  std::lock_guard lock(state_->mutex);
  edit(state_->machine);
}

FakeReadCounts FakePlatform::readCounts() const {
  std::lock_guard lock(state_->mutex);
  return state_->counts;
}

std::unique_ptr<CpuTicksPort> FakePlatform::makeCpuTicksPort() const {
  return std::make_unique<FakeCpuTicksPort>(state_);
}
std::unique_ptr<MemoryPort> FakePlatform::makeMemoryPort() const {
  return std::make_unique<FakeMemoryPort>(state_);
}
std::unique_ptr<DiskPort> FakePlatform::makeDiskPort() const {
  return std::make_unique<FakeDiskPort>(state_);
}
std::unique_ptr<AcceleratorPort> FakePlatform::makeAcceleratorPort() const {
  return std::make_unique<FakeAcceleratorPort>(state_);
}
std::unique_ptr<PowerSourcePort> FakePlatform::makePowerSourcePort() const {
  return std::make_unique<FakePowerSourcePort>(state_);
}
std::unique_ptr<TemperatureSensorPort> FakePlatform::makeTemperatureSensorPort() const {
  return std::make_unique<FakeTemperatureSensorPort>(state_);
}
std::unique_ptr<EnergyCounterPort> FakePlatform::makeEnergyCounterPort() const {
  return std::make_unique<FakeEnergyCounterPort>(state_);
}
const MonotonicClock& FakePlatform::clock() const {
  return *clock_;
}

}  // namespace brimly::testing
