#include "panel/EasedAnimation.h"

#include <limits>

namespace brimly {

EasedAnimation::EasedAnimation(double duration, TimingCurve curve, double initialValue)
    : duration_(duration),
      curve_(curve),
      from_(initialValue),
      to_(initialValue),
      end_(-std::numeric_limits<double>::infinity()) {}

void EasedAnimation::jumpTo(double value) {
  from_ = value;
  to_ = value;
  end_ = -std::numeric_limits<double>::infinity();
}

void EasedAnimation::animateTo(double target, double now, double delay) {
  if (target == to_) return;
  from_ = value(now);
  to_ = target;
  start_ = now + delay;
  end_ = start_ + duration_;
}

double EasedAnimation::value(double now) const {
  if (now >= end_) return to_;
  if (now <= start_) return from_;
  const double elapsed = duration_ > 0.0 ? (now - start_) / duration_ : 1.0;
  return from_ + (to_ - from_) * curve_(elapsed);
}

}  // namespace brimly
