#include "panel/views/FrameTimer.h"

#include <algorithm>
#include <chrono>

namespace brimly {

FrameTimer::FrameTimer(int intervalMs, QObject* parent) : QObject(parent), intervalMs_(intervalMs) {
  clock_ = [] {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
  };
  timer_.setInterval(intervalMs_);
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, &FrameTimer::tick);
}

void FrameTimer::run() {
  if (!timer_.isActive()) timer_.start(intervalMs_);
}

void FrameTimer::resumeAfter(int frames) {
  timer_.start(std::max(frames, 1) * intervalMs_);
}

void FrameTimer::tick() {
  // After a skip, the frames that follow come at the normal pace again.
  if (timer_.interval() != intervalMs_) timer_.setInterval(intervalMs_);
  emit frame(now());
}

}  // namespace brimly
