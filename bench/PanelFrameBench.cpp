// What the open panel costs on the main thread when its figures move: a CPU figure that swings
// between two values, as under a load that comes and goes, glides its bar and changes its value
// text. One iteration is one such sample and all the frames it takes, painted and flushed through
// the window system in use (run it on an X display to count the X11 flush, or with
// QT_QPA_PLATFORM=offscreen to see the painting alone).
//
// Frames back to back find everything in the caches, which the panel's frames, 60 ms apart among
// other programs' work, never do: the paced runs wait a frame interval before each frame, and
// their CPU time per frame (printed last) is the one that tells what a frame costs on screen. The
// clock is driven by hand, so the figures leave out the wake-ups of the frame timer itself.
//
// Instructions, which other programs' load does not change, come from callgrind: run under
// `valgrind --tool=callgrind --toggle-collect='*glideTo*'` with `--benchmark_filter=pause_ms:60`,
// it counts the paced runs' 5 × 30 glides of 8.5 paints each.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>

#include <QApplication>
#include <QWindow>
#include <memory>

#include "desktop/DesktopIntegrationFactory.h"
#include "panel/PanelState.h"
#include "panel/views/PanelWindow.h"
#include "panel/views/RootView.h"
#include "usage/views/UsageView.h"

namespace brimly::bench {
namespace {

// Only the CPU figure: the other cells show their placeholders, which no frame repaints.
MetricSample sampleWithCpu(double cpu) {
  MetricSample sample;
  sample.cpu = cpu;
  return sample;
}

// The notch panel pinned open on screen, its grid driven by a hand clock.
class OpenPanel {
 public:
  OpenPanel() {
    state_.setOpen(true);
    window_ = std::make_unique<PanelWindow>(state_, Size{185.0, 32.0}, false, [this] {
      grid_ = new UsageView(UsageView::panelColumns, UsageView::panelCellWidth);
      grid_->setSample(sampleWithCpu(0.1));
      grid_->frameTimer().setClock([this] { return now_; });
      return grid_;
    });
    window_->rootView()->frameTimer().setClock([this] { return now_; });
    window_->show();
    for (int i = 0; i < 100 && !window_->windowHandle()->isExposed(); ++i)
      QApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    QApplication::processEvents();
  }

  // Gives the grid `cpu` and runs every frame it asks for, each after `pauseUs` microseconds;
  // returns how many paints that took, the sample's own included. Never inlined, so that a
  // profiler can count it alone.
  [[gnu::noinline]] int glideTo(double cpu, useconds_t pauseUs) {
    grid_->setSample(sampleWithCpu(cpu));
    QApplication::processEvents();
    int paints = 1;
    while (grid_->isAnimating()) {
      if (pauseUs > 0) usleep(pauseUs);
      now_ += grid_->frameTimer().msToNextFrame() / 1000.0;
      grid_->frameTimer().tick();
      QApplication::processEvents();
      ++paints;
    }
    now_ += 0.5;  // the next sample comes a while later
    return paints;
  }

 private:
  PanelState state_;
  double now_ = 10.0;
  UsageView* grid_ = nullptr;
  std::unique_ptr<PanelWindow> window_;
};

// A figure that swings by `range(0)` percentage points with each sample; frames `range(1)`
// milliseconds apart.
void BM_OpenPanelSwingingFigure(benchmark::State& state) {
  OpenPanel panel;
  const double swing = static_cast<double>(state.range(0)) / 100.0;
  const auto pauseUs = static_cast<useconds_t>(state.range(1) * 1000);
  bool up = true;
  long paints = 0;
  for (auto _ : state) {
    paints += panel.glideTo(up ? 0.1 + swing : 0.1, pauseUs);
    up = !up;
  }
  state.counters["paints"] =
      benchmark::Counter(static_cast<double>(paints), benchmark::Counter::kAvgIterations);
  state.counters["per_paint"] = benchmark::Counter(
      static_cast<double>(paints), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_OpenPanelSwingingFigure)->ArgNames({"swing", "pause_ms"})->Args({5, 0})->Args({50, 0});
BENCHMARK(BM_OpenPanelSwingingFigure)
    ->ArgNames({"swing", "pause_ms"})
    ->Args({50, UsageView::frameIntervalMs})
    ->Iterations(30)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

// Prints, after the usual table, the median CPU time of one paced frame: what an animated frame
// of the open panel costs.
class FrameCostReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      const auto perPaint = run.counters.find("per_paint");
      if (run.aggregate_name == "median" && perPaint != run.counters.end())
        frameSeconds_ = perPaint->second.value;
    }
  }
  void Finalize() override {
    ConsoleReporter::Finalize();
    if (frameSeconds_ > 0.0) {
      std::printf("\nCPU time per animated frame (paced %d ms apart, median of 5 runs): %.1f us\n",
                  UsageView::frameIntervalMs, frameSeconds_ * 1e6);
    }
  }

 private:
  double frameSeconds_ = 0.0;
};

}  // namespace
}  // namespace brimly::bench

int main(int argc, char** argv) {
  brimly::choosePlatformPlugin({argv, argv + argc});  // as the program itself draws
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  brimly::bench::FrameCostReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
  return 0;
}
