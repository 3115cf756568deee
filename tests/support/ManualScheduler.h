#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

#include "platform/MainScheduler.h"
#include "platform/MonotonicClock.h"
#include "platform/SamplingQueue.h"

namespace brimly::testing {

// A hand-driven stand-in for the sampling thread, the main thread's deferred tasks and the clock.
// Time moves only in `advanceBy`; everything that falls due runs in time order (earlier scheduled
// first on a tie), and the main-thread tasks that each one posts run right after it. Time is kept
// in whole microseconds so that repeated steps never drift.
class ManualScheduler final : public SamplingQueue, public MainScheduler, public MonotonicClock {
 public:
  ManualScheduler();
  ~ManualScheduler() override;

  double nowSeconds() const override;
  std::unique_ptr<RepeatingTimer> startRepeatingTimer(double intervalSeconds,
                                                      std::function<void()> tick) override;
  void postToMain(std::function<void()> task) override;
  std::shared_ptr<DeferredTask> runAfter(double delaySeconds, std::function<void()> task) override;

  // Moves the clock forward by `seconds`, running what falls due on the way (also at exactly the
  // end). `advanceBy(0)` runs what is due now, such as a new timer's first tick.
  void advanceBy(double seconds);
  // Runs the queued main-thread tasks, including those they post.
  void runMainTasks();

  // The interval of every timer started so far, in start order.
  const std::vector<double>& startedTimerIntervals() const { return startedIntervals_; }
  std::size_t activeTimerCount() const;
  std::size_t pendingDeferredTaskCount() const;
  std::size_t queuedMainTaskCount() const { return mainTasks_.size(); }

 private:
  struct Timer;
  struct Task;
  class TimerHandle;
  class TaskHandle;

  void purge();

  std::int64_t nowMicros_ = 0;
  std::uint64_t nextSequence_ = 0;
  std::vector<std::shared_ptr<Timer>> timers_;
  std::vector<std::shared_ptr<Task>> tasks_;
  std::deque<std::function<void()>> mainTasks_;
  std::vector<double> startedIntervals_;
};

}  // namespace brimly::testing
