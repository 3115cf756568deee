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
  const int wait = std::max(frames, 1) * intervalMs_;
  if (inFrame_) {
    pacedInFrame_ = true;
    // The timer has just fired and comes again after its interval: at that pace already, it
    // need not be started again (which takes it out of the event loop's timers and puts it
    // back, on every frame of a motion).
    if (timer_.isActive() && timer_.interval() == wait) return;
  }
  timer_.start(wait);
}

void FrameTimer::tick() {
  inFrame_ = true;
  pacedInFrame_ = false;
  emit frame(now());
  inFrame_ = false;
  // After a skip, the frames that follow come at the normal pace again, unless this one said when
  // the next comes.
  if (!pacedInFrame_ && timer_.isActive() && timer_.interval() != intervalMs_) {
    timer_.setInterval(intervalMs_);
  }
}

}  // namespace brimly
