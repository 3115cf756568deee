#include "sampling/SystemMonitor.h"

#include "sampling/MetricSampler.h"

namespace brimly {

SystemMonitor::SystemMonitor(const PlatformFactory& platform, SamplingQueue& queue, QObject* parent)
    : QObject(parent),
      queue_(queue),
      clock_(platform.clock()),
      sampler_(std::make_shared<MetricSampler>(platform)),
      self_(std::make_shared<SystemMonitor*>(this)) {}

SystemMonitor::~SystemMonitor() {
  cancelTimer();
}

void SystemMonitor::start() {
  restartTimer(closedInterval);
}

void SystemMonitor::setPanelOpen(bool open) {
  if (open == panelOpen_) return;
  panelOpen_ = open;
  restartTimer(open ? openInterval : closedInterval);
}

void SystemMonitor::restartTimer(double intervalSeconds) {
  if (timer_) timer_->cancel();
  std::weak_ptr<MetricSampler> weakSampler = sampler_;
  std::weak_ptr<SystemMonitor*> weakSelf = self_;
  SamplingQueue* queue = &queue_;
  const MonotonicClock* clock = &clock_;
  // Runs on the sampling thread; the sampler is touched there only.
  auto tick = [weakSampler, weakSelf, queue, clock] {
    const std::shared_ptr<MetricSampler> sampler = weakSampler.lock();
    if (!sampler) return;
    const double takenAt = clock->nowSeconds();
    MetricSample sample = sampler->sample();
    // What the machine has sources for goes along with the first sample only.
    std::optional<std::vector<MetricKind>> withoutSource;
    if (sampler->sampleCounter() == 1) withoutSource = sampler->kindsWithoutSource();
    queue->postToMain([weakSelf, sample = std::move(sample), takenAt, withoutSource] {
      if (const auto self = weakSelf.lock()) (*self)->apply(sample, takenAt, withoutSource);
    });
  };
  timer_ = queue_.startRepeatingTimer(intervalSeconds, std::move(tick));
}

std::optional<double> SystemMonitor::timerInterval() const {
  if (!timer_) return std::nullopt;
  return timer_->intervalSeconds();
}

void SystemMonitor::cancelTimer() {
  if (!timer_) return;
  timer_->cancel();
  timer_.reset();
}

void SystemMonitor::apply(const MetricSample& sample, double takenAt,
                          const std::optional<std::vector<MetricKind>>& kindsWithoutSource) {
  current_ = sample;
  history_.record(takenAt, sample);
  if (kindsWithoutSource && !kindsWithoutSource_) {
    kindsWithoutSource_ = kindsWithoutSource;
    emit sourcesFound();
  }
  emit sampleApplied();
}

}  // namespace brimly
