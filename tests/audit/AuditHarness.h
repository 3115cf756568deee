#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "FakePlatform.h"
#include "ManualScheduler.h"
#include "audit/Audit.h"

namespace brimly::testing {

// Raw kernel figures set by the test.
class FakeKernelFigures final : public KernelFigureSource {
 public:
  // Unreadable until a test fills it.
  MeminfoFigures meminfoFigures{"/proc/meminfo", "No such file or directory", {}};
  std::optional<RootFilesystemFigures> rootFs;
  std::vector<std::string> gpu;
  std::vector<std::string> temperature;
  EnergyCounterAccess energyAccess = EnergyCounterAccess::readable;
  std::vector<std::string> energy;

  // Sets readable meminfo fields (KiB, nothing for a missing field).
  void setMeminfo(std::vector<std::pair<std::string, std::optional<std::uint64_t>>> fields) {
    meminfoFigures = MeminfoFigures{"/proc/meminfo", "", std::move(fields)};
  }

  MeminfoFigures meminfo() override { return meminfoFigures; }
  std::optional<RootFilesystemFigures> rootFilesystem() override { return rootFs; }
  std::vector<std::string> gpuNotes() override { return gpu; }
  std::vector<std::string> temperatureNotes() override { return temperature; }
  EnergyCounterAccess energyCounterAccess() override { return energyAccess; }
  std::vector<std::string> energyNotes() override { return energy; }
};

// The live section's loop, driven by the hand-driven scheduler: serving it moves time on and
// delivers every sample that falls due.
class ManualLiveLoop final : public LiveLoop {
 public:
  explicit ManualLiveLoop(ManualScheduler& scheduler) : scheduler_(scheduler) {}
  SamplingQueue& samplingQueue() override { return scheduler_; }
  void serveFor(double seconds) override {
    if (beforeServing) beforeServing();
    scheduler_.advanceBy(seconds);
    servedSeconds += seconds;
  }

  std::function<void()> beforeServing;
  double servedSeconds = 0.0;

 private:
  ManualScheduler& scheduler_;
};

// Everything a report needs, faked: a machine, the raw kernel figures, a fixed date, a blocking
// wait that only moves the hand-driven clock, and the live loop on the same clock.
class AuditHarness {
 public:
  explicit AuditHarness(ReportFlavour flavour, FakeMachine machine = FakeMachine::typicalLaptop())
      : flavour(flavour), platform(std::move(machine), scheduler), liveLoop(scheduler) {}

  Audit::Environment environment() {
    Audit::Environment environment;
    environment.flavour = flavour;
    environment.platform = &platform;
    environment.kernelFigures = withKernelFigures ? &kernel : nullptr;
    environment.now = [this] { return date; };
    environment.blockingWait = [this](double seconds) {
      waits.push_back(seconds);
      if (duringWait) duringWait();
      scheduler.advanceBy(seconds);
    };
    environment.liveLoop = &liveLoop;
    return environment;
  }

  // One section's text.
  std::string section(void (*dump)(const Audit::Environment&, ReportWriter&)) {
    std::ostringstream out;
    ReportWriter writer(out);
    dump(environment(), writer);
    return out.str();
  }

  // The whole report's text; `status` receives the exit status.
  std::string report(int* status = nullptr) {
    std::ostringstream out;
    const int result = Audit::run(environment(), out);
    if (status != nullptr) *status = result;
    return out.str();
  }

  ReportFlavour flavour;
  ManualScheduler scheduler;
  FakePlatform platform;
  FakeKernelFigures kernel;
  bool withKernelFigures = true;
  ManualLiveLoop liveLoop;
  std::chrono::system_clock::time_point date =
      std::chrono::sys_days{std::chrono::year{2026} / 11 / 22} + std::chrono::hours{9} +
      std::chrono::minutes{41} + std::chrono::seconds{7};
  std::function<void()> duringWait;
  std::vector<double> waits;
};

// Both flavours, for tests that must hold for each.
inline std::vector<ReportFlavour> bothFlavours() {
  return {ReportFlavour::macOS, ReportFlavour::gnuLinux};
}

}  // namespace brimly::testing
