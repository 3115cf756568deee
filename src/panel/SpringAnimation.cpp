#include "panel/SpringAnimation.h"

#include <cmath>
#include <numbers>

namespace brimly {

SpringAnimation::SpringAnimation(double response, double dampingFraction, double initialValue,
                                 double tolerance)
    : omega_(2.0 * std::numbers::pi / response),
      zeta_(dampingFraction),
      tolerance_(tolerance),
      target_(initialValue) {}

void SpringAnimation::jumpTo(double value) {
  target_ = value;
  displacement0_ = 0.0;
  velocity0_ = 0.0;
}

void SpringAnimation::retarget(double target, double now) {
  if (target == target_) return;
  const double current = value(now);
  const double speed = velocity(now);
  target_ = target;
  origin_ = now;
  displacement0_ = current - target;
  velocity0_ = speed;
}

double SpringAnimation::value(double now) const {
  if (isSettled(now)) return target_;
  return target_ + displacement(elapsed(now));
}

double SpringAnimation::velocity(double now) const {
  if (isSettled(now)) return 0.0;
  return rawVelocity(elapsed(now));
}

bool SpringAnimation::isSettled(double now) const {
  const double dt = elapsed(now);
  return std::abs(displacement(dt)) < tolerance_ && std::abs(rawVelocity(dt)) < tolerance_ * omega_;
}

// The solutions of x'' + 2*zeta*omega*x' + omega^2*x = 0 with x(0) = d0 and x'(0) = v0.
double SpringAnimation::displacement(double dt) const {
  const double d0 = displacement0_;
  const double v0 = velocity0_;
  const double w = omega_;
  if (zeta_ == 1.0) {
    return (d0 + (v0 + w * d0) * dt) * std::exp(-w * dt);
  }
  if (zeta_ < 1.0) {
    const double wd = w * std::sqrt(1.0 - zeta_ * zeta_);
    const double b = (v0 + zeta_ * w * d0) / wd;
    return std::exp(-zeta_ * w * dt) * (d0 * std::cos(wd * dt) + b * std::sin(wd * dt));
  }
  const double root = w * std::sqrt(zeta_ * zeta_ - 1.0);
  const double r1 = -zeta_ * w + root;
  const double r2 = -zeta_ * w - root;
  const double c2 = (v0 - r1 * d0) / (r2 - r1);
  const double c1 = d0 - c2;
  return c1 * std::exp(r1 * dt) + c2 * std::exp(r2 * dt);
}

double SpringAnimation::rawVelocity(double dt) const {
  const double d0 = displacement0_;
  const double v0 = velocity0_;
  const double w = omega_;
  if (zeta_ == 1.0) {
    return (v0 - w * (v0 + w * d0) * dt) * std::exp(-w * dt);
  }
  if (zeta_ < 1.0) {
    const double wd = w * std::sqrt(1.0 - zeta_ * zeta_);
    const double a = d0;
    const double b = (v0 + zeta_ * w * d0) / wd;
    const double decay = std::exp(-zeta_ * w * dt);
    return decay * ((b * wd - zeta_ * w * a) * std::cos(wd * dt) -
                    (a * wd + zeta_ * w * b) * std::sin(wd * dt));
  }
  const double root = w * std::sqrt(zeta_ * zeta_ - 1.0);
  const double r1 = -zeta_ * w + root;
  const double r2 = -zeta_ * w - root;
  const double c2 = (v0 - r1 * d0) / (r2 - r1);
  const double c1 = d0 - c2;
  return c1 * r1 * std::exp(r1 * dt) + c2 * r2 * std::exp(r2 * dt);
}

}  // namespace brimly
