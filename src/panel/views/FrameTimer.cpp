#include "panel/views/FrameTimer.h"

#include <chrono>

namespace brimly {

FrameTimer::FrameTimer(QObject* parent) : QObject(parent) {
  clock_ = [] {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
  };
  timer_.setInterval(intervalMs);
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, &FrameTimer::tick);
}

void FrameTimer::run() {
  if (!timer_.isActive()) timer_.start();
}

}  // namespace brimly
