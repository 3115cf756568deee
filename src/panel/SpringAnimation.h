#pragma once

namespace brimly {

// A value pulled towards a target by a damped spring of unit mass, described the way designers
// tune springs: `response` is the period of the undamped oscillation in seconds (so the stiffness
// is (2*pi / response)^2) and `dampingFraction` the ratio to critical damping (1 settles fastest
// without overshoot, below 1 overshoots, above 1 creeps). The motion is evaluated in closed form at
// the time passed in, so it costs nothing between frames and a test can step it by numbers.
//
// A new target takes over from the value and velocity the spring has at that moment: reversing in
// mid-flight bends the motion smoothly instead of restarting it.
class SpringAnimation {
 public:
  // Closer to the target than this, and too slow to cover this distance in 1/omega seconds, the
  // spring counts as settled and reports its target exactly.
  static constexpr double defaultTolerance = 5e-4;

  explicit SpringAnimation(double response, double dampingFraction = 1.0, double initialValue = 0.0,
                           double tolerance = defaultTolerance);

  // Sets the value at once, at rest.
  void jumpTo(double value);
  // Heads for `target` from the current value and velocity at time `now`. Asking for the target
  // it is already heading to changes nothing.
  void retarget(double target, double now);

  double value(double now) const;
  double velocity(double now) const;
  double target() const { return target_; }
  bool isSettled(double now) const;

  double angularFrequency() const { return omega_; }

 private:
  // Displacement from the target and its rate of change, `dt` seconds after the last retarget.
  double displacement(double dt) const;
  double rawVelocity(double dt) const;
  double elapsed(double now) const { return now > origin_ ? now - origin_ : 0.0; }

  double omega_;
  double zeta_;
  double tolerance_;
  double target_;
  double origin_ = 0.0;
  double displacement0_ = 0.0;
  double velocity0_ = 0.0;
};

}  // namespace brimly
