#include "platform/qt/QtSamplingQueue.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <mutex>

#include <QMetaObject>
#include <QTimer>

#include "core/BuildInfo.h"

namespace brimly {

// What the queue and its timer handles share: the object living on the worker thread through
// which work is sent there, cleared (under the lock) once the thread is being stopped.
struct QtSamplingQueue::Shared {
  std::mutex mutex;
  QObject* worker = nullptr;

  template <typename Work>
  void sendToWorker(Work&& work) {
    std::lock_guard lock(mutex);
    if (worker != nullptr) {
      QMetaObject::invokeMethod(worker, std::forward<Work>(work), Qt::QueuedConnection);
    }
  }
};

namespace {

// One timer's state. `timer` is touched on the worker thread only; `cancelled` may be set from
// any thread and is checked before every tick.
struct TimerState {
  std::function<void()> tick;
  double intervalSeconds = 0;
  std::atomic<bool> cancelled = false;
  QTimer* timer = nullptr;

  void tickUnlessCancelled() {
    if (!cancelled.load()) tick();
  }
};

class QtRepeatingTimer final : public RepeatingTimer {
 public:
  QtRepeatingTimer(std::shared_ptr<QtSamplingQueue::Shared> shared,
                   std::shared_ptr<TimerState> state)
      : shared_(std::move(shared)), state_(std::move(state)) {}
  ~QtRepeatingTimer() override { cancel(); }

  void cancel() override {
    if (state_->cancelled.exchange(true)) return;
    shared_->sendToWorker([state = state_] {
      delete state->timer;
      state->timer = nullptr;
    });
  }
  double intervalSeconds() const override { return state_->intervalSeconds; }

 private:
  std::shared_ptr<QtSamplingQueue::Shared> shared_;
  std::shared_ptr<TimerState> state_;
};

}  // namespace

QtSamplingQueue::QtSamplingQueue() : shared_(std::make_shared<Shared>()) {
  thread_.setObjectName(threadName());
  auto* worker = new QObject;
  worker->moveToThread(&thread_);
  // The worker (and the timers it parents) goes when the thread ends, on that thread.
  QObject::connect(&thread_, &QThread::finished, worker, &QObject::deleteLater);
  shared_->worker = worker;
  thread_.start(QThread::LowPriority);
}

QtSamplingQueue::~QtSamplingQueue() {
  {
    std::lock_guard lock(shared_->mutex);
    shared_->worker = nullptr;
  }
  thread_.quit();
  thread_.wait();
}

QString QtSamplingQueue::threadName() {
  return QString::fromUtf8(BuildInfo::bundleIdentifier) + QStringLiteral(".sampler");
}

std::unique_ptr<RepeatingTimer> QtSamplingQueue::startRepeatingTimer(double intervalSeconds,
                                                                     std::function<void()> tick) {
  auto state = std::make_shared<TimerState>();
  state->tick = std::move(tick);
  state->intervalSeconds = intervalSeconds;
  const int milliseconds =
      std::isfinite(intervalSeconds)
          ? static_cast<int>(std::clamp(std::lround(intervalSeconds * 1000.0), 1L, 86'400'000L))
          : 86'400'000;
  std::lock_guard lock(shared_->mutex);
  if (shared_->worker != nullptr) {
    QObject* worker = shared_->worker;
    QMetaObject::invokeMethod(
        worker,
        [state, worker, milliseconds] {
          if (state->cancelled.load()) return;
          auto* timer = new QTimer(worker);
          timer->setTimerType(Qt::CoarseTimer);
          timer->setInterval(milliseconds);
          QObject::connect(timer, &QTimer::timeout, timer,
                           [state] { state->tickUnlessCancelled(); });
          state->timer = timer;
          timer->start();
          state->tickUnlessCancelled();  // the first tick comes at once
        },
        Qt::QueuedConnection);
  }
  return std::make_unique<QtRepeatingTimer>(shared_, state);
}

void QtSamplingQueue::postToMain(std::function<void()> task) {
  QMetaObject::invokeMethod(&mainContext_, std::move(task), Qt::QueuedConnection);
}

}  // namespace brimly
