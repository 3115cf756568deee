#pragma once

#include <functional>
#include <memory>

namespace brimly {

// A running repeating timer. Cancelling it (or destroying it) stops further ticks; a tick that is
// already running finishes.
class RepeatingTimer {
 public:
  virtual ~RepeatingTimer() = default;
  virtual void cancel() = 0;
  virtual double intervalSeconds() const = 0;
};

// The sampling thread and the way back to the main thread. Production runs ticks on one worker
// thread with coarse timers; tests drive both by hand.
class SamplingQueue {
 public:
  virtual ~SamplingQueue() = default;
  // Calls `tick` on the sampling thread at once, then every `intervalSeconds`.
  virtual std::unique_ptr<RepeatingTimer> startRepeatingTimer(double intervalSeconds,
                                                              std::function<void()> tick) = 0;
  // Runs `task` on the main thread after the work it is doing now.
  virtual void postToMain(std::function<void()> task) = 0;
};

}  // namespace brimly
