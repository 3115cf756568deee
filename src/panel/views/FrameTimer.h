#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

namespace brimly {

// Drives an animation frame by frame, and only while it moves: the owner calls `run()` when a
// motion starts and `stop()` from its frame handler once everything has arrived, so an idle view
// costs no wake-ups at all. An owner that knows the next few frames would draw nothing new can
// skip them with `resumeAfter`. The clock (seconds on a monotonic scale) can be replaced, so that
// tests set the time by hand and call `tick()` themselves.
class FrameTimer : public QObject {
  Q_OBJECT

 public:
  using Clock = std::function<double()>;
  static constexpr int displayIntervalMs = 16;

  explicit FrameTimer(int intervalMs = displayIntervalMs, QObject* parent = nullptr);

  void setClock(Clock clock) { clock_ = std::move(clock); }
  double now() const { return clock_(); }
  int intervalMs() const { return intervalMs_; }

  // Frames every interval from now on; changes nothing while frames are already coming.
  void run();
  // The next frame comes `frames` intervals from now (at least one), then every interval again.
  // Called from a frame, "now" is that frame's time.
  void resumeAfter(int frames);
  void stop() { timer_.stop(); }
  bool isRunning() const { return timer_.isActive(); }
  // How long from the last (re)start until the next frame, in milliseconds.
  int msToNextFrame() const { return timer_.interval(); }

  // One frame: what the timer does every interval.
  void tick();

 signals:
  void frame(double now);

 private:
  int intervalMs_;
  Clock clock_;
  QTimer timer_;
  bool inFrame_ = false;       // `frame` is being handled
  bool pacedInFrame_ = false;  // and its handler said when the next frame comes
};

}  // namespace brimly
