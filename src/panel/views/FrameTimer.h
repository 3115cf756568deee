#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

namespace brimly {

// Drives an animation at display rate, and only while it moves: the owner calls `run()` when a
// motion starts and `stop()` from its frame handler once everything has arrived, so an idle view
// costs no wake-ups at all. The clock (seconds on a monotonic scale) can be replaced, so that tests
// set the time by hand and call `tick()` themselves.
class FrameTimer : public QObject {
  Q_OBJECT

 public:
  using Clock = std::function<double()>;
  static constexpr int intervalMs = 16;

  explicit FrameTimer(QObject* parent = nullptr);

  void setClock(Clock clock) { clock_ = std::move(clock); }
  double now() const { return clock_(); }

  void run();
  void stop() { timer_.stop(); }
  bool isRunning() const { return timer_.isActive(); }

  // One frame: what the timer does every interval.
  void tick() { emit frame(now()); }

 signals:
  void frame(double now);

 private:
  Clock clock_;
  QTimer timer_;
};

}  // namespace brimly
