#pragma once

namespace brimly {

// A cubic Bézier timing curve from (0, 0) to (1, 1) with two control points, as used by CSS and
// by the usual animation toolkits: it maps the elapsed fraction of an animation's duration to the
// fraction of the way travelled.
class TimingCurve {
 public:
  constexpr TimingCurve(double x1, double y1, double x2, double y2)
      : x1_(x1), y1_(y1), x2_(x2), y2_(y2) {}

  // Quick start, gentle arrival: control points (0, 0) and (0.58, 1).
  static constexpr TimingCurve easeOut() { return TimingCurve(0.0, 0.0, 0.58, 1.0); }
  // Gentle start and gentle arrival: control points (0.42, 0) and (0.58, 1).
  static constexpr TimingCurve easeInOut() { return TimingCurve(0.42, 0.0, 0.58, 1.0); }
  static constexpr TimingCurve linear() { return TimingCurve(0.0, 0.0, 1.0, 1.0); }

  // The fraction travelled after `elapsed` of the duration; `elapsed` is clamped to [0, 1].
  double operator()(double elapsed) const;

 private:
  double x1_, y1_, x2_, y2_;
};

}  // namespace brimly
