#pragma once

#include <functional>
#include <memory>

#include <QObject>
#include <QString>
#include <QThread>

#include "platform/SamplingQueue.h"

namespace brimly {

// The sampling thread: one worker thread, named after the application's bundle identifier
// followed by ".sampler", on which repeating coarse timers tick, and the way back to the thread
// that made the queue (the main thread). Coarse timers leave the system room to coalesce
// wake-ups with other work.
class QtSamplingQueue final : public SamplingQueue {
 public:
  // Starts the worker thread. Tasks posted with `postToMain` run in the thread that makes the
  // queue, from its event loop.
  QtSamplingQueue();
  // Stops the worker thread once the tick it is running (if any) has finished; ticks and
  // main-thread tasks still waiting are dropped. Timer handles may outlive the queue.
  ~QtSamplingQueue() override;
  QtSamplingQueue(const QtSamplingQueue&) = delete;
  QtSamplingQueue& operator=(const QtSamplingQueue&) = delete;

  std::unique_ptr<RepeatingTimer> startRepeatingTimer(double intervalSeconds,
                                                      std::function<void()> tick) override;
  void postToMain(std::function<void()> task) override;

  // The worker thread's name.
  static QString threadName();
  const QThread& samplingThread() const { return thread_; }

  struct Shared;

 private:
  std::shared_ptr<Shared> shared_;
  QObject mainContext_;
  QThread thread_;
};

}  // namespace brimly
