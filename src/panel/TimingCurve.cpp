#include "panel/TimingCurve.h"

#include <cmath>

namespace brimly {

namespace {

// One coordinate of the curve at parameter s, with the end points fixed at 0 and 1.
double bezier(double s, double p1, double p2) {
  const double r = 1.0 - s;
  return 3.0 * r * r * s * p1 + 3.0 * r * s * s * p2 + s * s * s;
}

double bezierSlope(double s, double p1, double p2) {
  const double r = 1.0 - s;
  return 3.0 * r * r * p1 + 6.0 * r * s * (p2 - p1) + 3.0 * s * s * (1.0 - p2);
}

}  // namespace

double TimingCurve::operator()(double elapsed) const {
  if (!(elapsed > 0.0)) return 0.0;  // also a NaN
  if (elapsed >= 1.0) return 1.0;

  // Find the parameter whose x is `elapsed`. x(s) rises monotonically for control points with x
  // in [0, 1], so Newton steps converge quickly; bisection takes over where the slope vanishes.
  constexpr double precision = 1e-9;
  double s = elapsed;
  for (int i = 0; i < 8; ++i) {
    const double error = bezier(s, x1_, x2_) - elapsed;
    if (std::abs(error) < precision) return bezier(s, y1_, y2_);
    const double slope = bezierSlope(s, x1_, x2_);
    if (std::abs(slope) < 1e-6) break;
    s -= error / slope;
    if (s < 0.0 || s > 1.0) break;
  }
  double low = 0.0;
  double high = 1.0;
  s = elapsed;
  for (int i = 0; i < 64 && high - low > precision; ++i) {
    s = (low + high) / 2.0;
    if (bezier(s, x1_, x2_) < elapsed) {
      low = s;
    } else {
      high = s;
    }
  }
  return bezier((low + high) / 2.0, y1_, y2_);
}

}  // namespace brimly
