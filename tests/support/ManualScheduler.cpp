#include "ManualScheduler.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace brimly::testing {

namespace {

std::int64_t toMicros(double seconds) { return std::llround(seconds * 1'000'000.0); }

}  // namespace

struct ManualScheduler::Timer {
  std::int64_t intervalMicros = 0;
  double intervalSeconds = 0;
  std::int64_t dueMicros = 0;
  std::uint64_t sequence = 0;
  std::function<void()> tick;
  bool cancelled = false;
};

struct ManualScheduler::Task {
  std::int64_t dueMicros = 0;
  std::uint64_t sequence = 0;
  std::function<void()> run;
  bool cancelled = false;
};

class ManualScheduler::TimerHandle final : public RepeatingTimer {
 public:
  explicit TimerHandle(std::shared_ptr<Timer> timer) : timer_(std::move(timer)) {}
  ~TimerHandle() override { cancel(); }
  void cancel() override { timer_->cancelled = true; }
  double intervalSeconds() const override { return timer_->intervalSeconds; }

 private:
  std::shared_ptr<Timer> timer_;
};

class ManualScheduler::TaskHandle final : public DeferredTask {
 public:
  explicit TaskHandle(std::shared_ptr<Task> task) : task_(std::move(task)) {}
  void cancel() override { task_->cancelled = true; }

 private:
  std::shared_ptr<Task> task_;
};

ManualScheduler::ManualScheduler() = default;
ManualScheduler::~ManualScheduler() = default;

double ManualScheduler::nowSeconds() const { return static_cast<double>(nowMicros_) / 1'000'000.0; }

std::unique_ptr<RepeatingTimer> ManualScheduler::startRepeatingTimer(double intervalSeconds,
                                                                     std::function<void()> tick) {
  if (!(intervalSeconds > 0)) throw std::invalid_argument("timer interval must be positive");
  auto timer = std::make_shared<Timer>();
  timer->intervalMicros = toMicros(intervalSeconds);
  timer->intervalSeconds = intervalSeconds;
  timer->dueMicros = nowMicros_;
  timer->sequence = nextSequence_++;
  timer->tick = std::move(tick);
  timers_.push_back(timer);
  startedIntervals_.push_back(intervalSeconds);
  return std::make_unique<TimerHandle>(timer);
}

void ManualScheduler::postToMain(std::function<void()> task) { mainTasks_.push_back(std::move(task)); }

std::shared_ptr<DeferredTask> ManualScheduler::runAfter(double delaySeconds,
                                                        std::function<void()> task) {
  auto entry = std::make_shared<Task>();
  entry->dueMicros = nowMicros_ + toMicros(std::max(delaySeconds, 0.0));
  entry->sequence = nextSequence_++;
  entry->run = std::move(task);
  tasks_.push_back(entry);
  return std::make_shared<TaskHandle>(entry);
}

void ManualScheduler::advanceBy(double seconds) {
  if (seconds < 0) throw std::invalid_argument("time only moves forward");
  const std::int64_t target = nowMicros_ + toMicros(seconds);
  for (;;) {
    purge();
    std::shared_ptr<Timer> nextTimer;
    for (const auto& timer : timers_) {
      if (timer->dueMicros > target) continue;
      if (!nextTimer || timer->dueMicros < nextTimer->dueMicros ||
          (timer->dueMicros == nextTimer->dueMicros && timer->sequence < nextTimer->sequence)) {
        nextTimer = timer;
      }
    }
    std::shared_ptr<Task> nextTask;
    for (const auto& task : tasks_) {
      if (task->dueMicros > target) continue;
      if (!nextTask || task->dueMicros < nextTask->dueMicros ||
          (task->dueMicros == nextTask->dueMicros && task->sequence < nextTask->sequence)) {
        nextTask = task;
      }
    }
    const bool taskFirst =
        nextTask && (!nextTimer || nextTask->dueMicros < nextTimer->dueMicros ||
                     (nextTask->dueMicros == nextTimer->dueMicros &&
                      nextTask->sequence < nextTimer->sequence));
    if (taskFirst) {
      nowMicros_ = nextTask->dueMicros;
      tasks_.erase(std::find(tasks_.begin(), tasks_.end(), nextTask));
      nextTask->run();
    } else if (nextTimer) {
      nowMicros_ = nextTimer->dueMicros;
      nextTimer->dueMicros += nextTimer->intervalMicros;
      nextTimer->sequence = nextSequence_++;
      nextTimer->tick();
    } else {
      break;
    }
    runMainTasks();
  }
  nowMicros_ = target;
  runMainTasks();
}

void ManualScheduler::runMainTasks() {
  while (!mainTasks_.empty()) {
    auto task = std::move(mainTasks_.front());
    mainTasks_.pop_front();
    task();
  }
}

std::size_t ManualScheduler::activeTimerCount() const {
  return static_cast<std::size_t>(std::count_if(
      timers_.begin(), timers_.end(), [](const auto& timer) { return !timer->cancelled; }));
}

std::size_t ManualScheduler::pendingDeferredTaskCount() const {
  return static_cast<std::size_t>(std::count_if(
      tasks_.begin(), tasks_.end(), [](const auto& task) { return !task->cancelled; }));
}

void ManualScheduler::purge() {
  std::erase_if(timers_, [](const auto& timer) { return timer->cancelled; });
  std::erase_if(tasks_, [](const auto& task) { return task->cancelled; });
}

}  // namespace brimly::testing
