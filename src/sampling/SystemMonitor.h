#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QObject>

#include "core/MetricKind.h"
#include "platform/PlatformFactory.h"
#include "platform/SamplingQueue.h"
#include "sampling/MetricSample.h"
#include "sampling/SampleHistory.h"
#include "sampling/SamplingRateControl.h"

namespace brimly {

class MetricSampler;

// The observable model of the live metrics. A repeating timer on the sampling thread takes one
// sample per tick; each sample crosses to the main thread by value and replaces the published
// readings whole, with no smoothing: a reading that is absent in the sample becomes absent here.
// The timer runs every second while the notch panel is open and every five seconds while it is
// closed. Everything but the sampling itself happens on the main thread. The monitor also keeps the
// latest samples it applied, each with the time it was taken (see `SampleHistory`), for the trend
// lines: nothing is sampled for them that would not be sampled anyway.
class SystemMonitor : public QObject, public SamplingRateControl {
  Q_OBJECT

 public:
  // Builds the sampler (with its own readers) but takes no sample until `start`. `platform` and
  // `queue` must outlive the monitor.
  SystemMonitor(const PlatformFactory& platform, SamplingQueue& queue, QObject* parent = nullptr);
  ~SystemMonitor() override;

  // The published readings: the last sample applied, or all defaults before the first.
  const MetricSample& current() const { return current_; }
  // The latest samples applied, oldest first, the last of them `current()`.
  const SampleHistory& history() const { return history_; }

  // The metrics this machine has no source for at all, as the first sample found them (see
  // `MetricSources`); nothing before the first sample is applied.
  const std::optional<std::vector<MetricKind>>& kindsWithoutSource() const {
    return kindsWithoutSource_;
  }

  // Starts sampling at the closed-panel rate, whatever the panel flag says; the first sample is
  // taken at once.
  void start();

  bool panelOpen() const override { return panelOpen_; }
  void setPanelOpenFlag(bool open) override { panelOpen_ = open; }
  // On a real change only: records the flag and restarts the timer at the matching rate, which
  // takes a fresh sample at once.
  void setPanelOpen(bool open);

  // Replaces the timer with one that ticks at once and then every `intervalSeconds`. The sampler
  // is not reset: the first processor figure after a restart covers the time since the previous
  // tick (or repeats the previous figure when that tick was too recent for the system to answer
  // afresh), and the disk refresh count runs on.
  void restartTimer(double intervalSeconds) override;

  bool hasTimer() const { return timer_ != nullptr; }
  // The running timer's interval, when there is one.
  std::optional<double> timerInterval() const;
  // Stops sampling for good (at shutdown): cancels the timer and forgets it.
  void cancelTimer();

 signals:
  // The published readings have just been replaced by a new sample.
  void sampleApplied();
  // `kindsWithoutSource` has just been learnt, with the first sample (before its sampleApplied).
  void sourcesFound();

 private:
  void apply(const MetricSample& sample, double takenAt,
             const std::optional<std::vector<MetricKind>>& kindsWithoutSource);

  SamplingQueue& queue_;
  const MonotonicClock& clock_;  // read on the sampling thread, to stamp each sample
  std::shared_ptr<MetricSampler> sampler_;
  // Ticks and posted samples reach the monitor only through weak references to these, so that a
  // tick or a delivery that comes after the monitor is gone does nothing.
  std::shared_ptr<SystemMonitor*> self_;
  std::unique_ptr<RepeatingTimer> timer_;
  bool panelOpen_ = false;
  MetricSample current_;
  SampleHistory history_;
  std::optional<std::vector<MetricKind>> kindsWithoutSource_;
};

}  // namespace brimly
