#include "platform/qt/QtMainScheduler.h"

#include <algorithm>
#include <cmath>

#include <QPointer>
#include <QTimer>

namespace brimly {

namespace {

struct TaskState {
  bool cancelled = false;
  QPointer<QTimer> timer;
};

class QtDeferredTask final : public DeferredTask {
 public:
  explicit QtDeferredTask(std::shared_ptr<TaskState> state) : state_(std::move(state)) {}

  void cancel() override {
    state_->cancelled = true;
    if (state_->timer) {
      state_->timer->stop();
      state_->timer->deleteLater();
    }
  }

 private:
  std::shared_ptr<TaskState> state_;
};

}  // namespace

QtMainScheduler::QtMainScheduler() = default;
QtMainScheduler::~QtMainScheduler() = default;

std::shared_ptr<DeferredTask> QtMainScheduler::runAfter(double delaySeconds,
                                                        std::function<void()> task) {
  auto state = std::make_shared<TaskState>();
  const double delay = std::isfinite(delaySeconds) ? std::max(delaySeconds, 0.0) : 0.0;
  auto* timer = new QTimer(&context_);
  timer->setSingleShot(true);
  timer->setTimerType(Qt::PreciseTimer);
  timer->setInterval(static_cast<int>(std::min(std::lround(delay * 1000.0), 86'400'000L)));
  QObject::connect(timer, &QTimer::timeout, timer, [state, timer, task = std::move(task)] {
    timer->deleteLater();
    if (!state->cancelled) task();
  });
  state->timer = timer;
  timer->start();
  return std::make_shared<QtDeferredTask>(state);
}

}  // namespace brimly
