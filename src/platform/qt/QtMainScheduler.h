#pragma once

#include <functional>
#include <memory>

#include <QObject>

#include "platform/MainScheduler.h"

namespace brimly {

// Deferred tasks on the main thread, over single-shot timers. Used from the main thread only.
// A cancelled task never runs; dropping its handle does not cancel it.
class QtMainScheduler final : public MainScheduler {
 public:
  QtMainScheduler();
  // Tasks still waiting are dropped.
  ~QtMainScheduler() override;
  QtMainScheduler(const QtMainScheduler&) = delete;
  QtMainScheduler& operator=(const QtMainScheduler&) = delete;

  std::shared_ptr<DeferredTask> runAfter(double delaySeconds, std::function<void()> task) override;

 private:
  QObject context_;
};

}  // namespace brimly
