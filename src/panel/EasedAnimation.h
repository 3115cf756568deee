#pragma once

#include "panel/TimingCurve.h"

namespace brimly {

// A value that moves to a new target over a fixed duration along a timing curve. Time is passed
// in explicitly (seconds on any monotonic clock), so the animation does no work of its own and a
// test can step it by numbers.
//
// A new target starts from wherever the value is at that moment, so a change in mid-flight never
// jumps. Asking for the target it is already heading to changes nothing: an unchanged value does
// not animate again.
class EasedAnimation {
 public:
  explicit EasedAnimation(double duration, TimingCurve curve = TimingCurve::easeOut(),
                          double initialValue = 0.0);

  // Sets the value at once, ending any motion.
  void jumpTo(double value);
  // Heads for `target`, starting `delay` seconds after `now`; the value holds still until then.
  // A negative delay sets off from where the value is now as if the motion had begun that long
  // ago: its first stretch is covered at once, and it arrives that much sooner.
  void animateTo(double target, double now, double delay = 0.0);

  double value(double now) const;
  double target() const { return to_; }
  // True from the moment a motion is asked for until it has arrived (the delay included).
  bool isRunning(double now) const { return now < end_; }
  double duration() const { return duration_; }

 private:
  double duration_;
  TimingCurve curve_;
  double from_;
  double to_;
  double start_ = 0.0;
  double end_ = 0.0;
};

}  // namespace brimly
