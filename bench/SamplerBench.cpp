// How much one MetricSampler::sample() costs on this Linux machine, against the least any reader
// of the same figures must spend: opening and reading the very kernel files the backend touches.
//
// The baseline's file list is not written by hand: a sampler over recording wrappers of the
// backend's file view and statvfs source notes every access of twenty sample() calls, and the
// baseline replays calls 11 to 20 in turn with plain system calls. Calls 11 to 20 hold one disk
// reading, as every ten calls of a running sampler do.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <memory>
#include <string>

#include "RecordingSources.h"
#include "platform/linux/LinuxPlatformFactory.h"
#include "sampling/MetricSampler.h"

namespace brimly::bench {
namespace {

constexpr int kRecordedCalls = 20;
constexpr int kSteadyCallsFrom = 10;  // calls 11…20 (indices 10…19)

std::vector<AccessLog> recordSteadyCalls() {
  AccessLog* current = nullptr;
  LinuxSources sources = LinuxSources::system();
  sources.files = std::make_shared<RecordingFiles>(sources.files, "/", &current);
  sources.fileSystemStats = std::make_shared<RecordingStats>(sources.fileSystemStats, &current);
  LinuxPlatformFactory platform(sources);
  MetricSampler sampler(platform);
  std::vector<AccessLog> logs(kRecordedCalls);
  for (auto& log : logs) {
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
  LinuxPlatformFactory platform;
  MetricSampler sampler(platform);
  for (int i = 0; i < kSteadyCallsFrom; ++i)
    sampler.sample();  // past the first disk reading
  for (auto _ : state)
    benchmark::DoNotOptimize(sampler.sample());
}

void BM_KernelFilesBaseline(benchmark::State& state) {
  const auto& logs = steadyCalls();
  std::size_t call = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(replay(logs[call]));
    call = (call + 1) % logs.size();
  }
}

// Prints, after the usual table, each benchmark's median and the sampler's ratio to the baseline.
class MedianRatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      // Times are in the benchmark's unit, microseconds.
      if (run.aggregate_name == "median")
        medians_[run.run_name.function_name] = run.GetAdjustedRealTime();
    }
  }
  void Finalize() override {
    ConsoleReporter::Finalize();
    const auto sampler = medians_.find("BM_MetricSamplerSample");
    const auto baseline = medians_.find("BM_KernelFilesBaseline");
    if (sampler == medians_.end() || baseline == medians_.end()) return;
    std::printf("\nmedian MetricSampler::sample(): %.2f us\n", sampler->second);
    std::printf("median kernel-file baseline:   %.2f us\n", baseline->second);
    std::printf("ratio sampler / baseline:      %.2fx (target <= 1.5x)\n",
                sampler->second / baseline->second);
    std::size_t accesses = 0;
    for (const auto& log : steadyCalls())
      accesses += log.size();
    std::printf("kernel accesses per sample():  %.1f (mean of calls 11-20)\n",
                static_cast<double>(accesses) / static_cast<double>(steadyCalls().size()));
  }

 private:
  std::map<std::string, double> medians_;
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
