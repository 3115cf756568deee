#pragma once

#include <functional>
#include <memory>

namespace brimly {

// A task scheduled for later on the main thread. Dropping the handle does not cancel it: a
// replaced but uncancelled task still runs. A cancelled task never runs.
class DeferredTask {
 public:
  virtual ~DeferredTask() = default;
  virtual void cancel() = 0;
};

class MainScheduler {
 public:
  virtual ~MainScheduler() = default;
  virtual std::shared_ptr<DeferredTask> runAfter(double delaySeconds,
                                                 std::function<void()> task) = 0;
};

}  // namespace brimly
