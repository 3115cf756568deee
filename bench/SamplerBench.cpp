// How much one MetricSampler::sample() costs on this Linux machine, against the least any reader
// of the same figures must spend: opening and reading the very kernel files the backend touches.
//
// The baseline's file list is not written by hand: a sampler over recording wrappers of the
// backend's file view and statvfs source notes every access of its first calls, and the baseline
// replays a steady stretch of them in turn with plain system calls. Both run on a clock that moves
// one second per sample, as while the panel is open, so that what a running sampler does only now
// and then (reading the disk every tenth sample, listing the devices that come and go every
// `ListingRefresh::intervalSeconds`) comes as often in both: the stretch is one whole period of
// both.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <memory>
#include <numeric>
#include <string>

#include "RecordingSources.h"
#include "platform/linux/LinuxAcceleratorPort.h"
#include "platform/linux/LinuxPlatformFactory.h"
#include "platform/linux/ListingRefresh.h"
#include "sampling/MetricSampler.h"

namespace brimly::bench {
namespace {

constexpr int kSteadyCallsFrom = 10;  // the first ten calls settle (the disk is read on call 1)
constexpr int kDiskPeriod = 10;       // calls; see DiskUsage::isRefreshCall
constexpr int kSteadyCalls =
    std::lcm(std::lcm(kDiskPeriod, static_cast<int>(ListingRefresh::intervalSeconds)),
             LinuxAcceleratorPort::readingsPerScan);

// A clock that the benchmark moves on by a second before each sample.
class SampleClock final : public MonotonicClock {
 public:
  double nowSeconds() const override { return now_; }
  void nextSample() { now_ += 1.0; }

 private:
  double now_ = 1000.0;
};

// The running system's sources, seen on `clock`.
LinuxSources systemOn(const std::shared_ptr<SampleClock>& clock) {
  LinuxSources sources = LinuxSources::system();
  sources.clock = clock;
  return sources;
}

std::vector<AccessLog> recordSteadyCalls() {
  AccessLog* current = nullptr;
  const auto clock = std::make_shared<SampleClock>();
  LinuxSources sources = systemOn(clock);
  sources.files = std::make_shared<RecordingFiles>(sources.files, "/", &current);
  sources.fileSystemStats = std::make_shared<RecordingStats>(sources.fileSystemStats, &current);
  LinuxPlatformFactory platform(sources);
  MetricSampler sampler(platform);
  std::vector<AccessLog> logs(static_cast<std::size_t>(kSteadyCallsFrom + kSteadyCalls));
  for (auto& log : logs) {
    clock->nextSample();
    current = &log;
    benchmark::DoNotOptimize(sampler.sample());
    current = nullptr;
  }
  return {logs.begin() + kSteadyCallsFrom, logs.end()};
}

const std::vector<AccessLog>& steadyCalls() {
  static const std::vector<AccessLog> logs = recordSteadyCalls();
  return logs;
}

void BM_MetricSamplerSample(benchmark::State& state) {
  const auto clock = std::make_shared<SampleClock>();
  LinuxPlatformFactory platform(systemOn(clock));
  MetricSampler sampler(platform);
  for (int i = 0; i < kSteadyCallsFrom; ++i) {
    clock->nextSample();
    sampler.sample();  // past the first disk reading and listing
  }
  for (auto _ : state) {
    clock->nextSample();
    benchmark::DoNotOptimize(sampler.sample());
  }
}

void BM_KernelFilesBaseline(benchmark::State& state) {
  const auto& logs = steadyCalls();
  std::size_t call = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(replay(logs[call]));
    call = (call + 1) % logs.size();
  }
}

// Prints, after the usual table, each benchmark's medians and the sampler's ratio to the baseline,
// in wall-clock and in CPU time: on an idle machine the two agree; where other programs keep the
// processors busy, the wall-clock figures also count the time they held them, and only the CPU
// figures tell what the calls cost.
class MedianRatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      // Times are in the benchmark's unit, microseconds.
      if (run.aggregate_name == "median") {
        medians_[run.run_name.function_name] = {run.GetAdjustedRealTime(),
                                                run.GetAdjustedCPUTime()};
      }
    }
  }
  void Finalize() override {
    ConsoleReporter::Finalize();
    const auto sampler = medians_.find("BM_MetricSamplerSample");
    const auto baseline = medians_.find("BM_KernelFilesBaseline");
    if (sampler == medians_.end() || baseline == medians_.end()) return;
    const Medians& s = sampler->second;
    const Medians& b = baseline->second;
    std::printf("\n                                   wall        CPU\n");
    std::printf("median MetricSampler::sample(): %7.2f us %7.2f us\n", s.wall, s.cpu);
    std::printf("median kernel-file baseline:    %7.2f us %7.2f us\n", b.wall, b.cpu);
    std::printf("ratio sampler / baseline:       %7.2fx   %7.2fx   (target <= 1.1x)\n",
                s.wall / b.wall, s.cpu / b.cpu);
    std::size_t accesses = 0;
    for (const auto& log : steadyCalls())
      accesses += log.size();
    std::printf("kernel accesses per sample():   %.2f (mean of calls %d-%d)\n",
                static_cast<double>(accesses) / static_cast<double>(steadyCalls().size()),
                kSteadyCallsFrom + 1, kSteadyCallsFrom + kSteadyCalls);
  }

 private:
  struct Medians {
    double wall = 0.0;
    double cpu = 0.0;
  };
  std::map<std::string, Medians> medians_;
};

BENCHMARK(BM_MetricSamplerSample)
    ->Unit(benchmark::kMicrosecond)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
BENCHMARK(BM_KernelFilesBaseline)
    ->Unit(benchmark::kMicrosecond)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);

}  // namespace
}  // namespace brimly::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  brimly::bench::MedianRatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
  return 0;
}
