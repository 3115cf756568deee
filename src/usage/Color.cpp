#include "usage/Color.h"

#include <algorithm>
#include <cmath>

namespace brimly {

namespace {

// The sRGB transfer curve, which Display P3 uses too.
double linearised(double encoded) {
  if (encoded <= 0.04045) return encoded / 12.92;
  return std::pow((encoded + 0.055) / 1.055, 2.4);
}

double encoded(double linear) {
  if (linear <= 0.0031308) return 12.92 * linear;
  return 1.055 * std::pow(linear, 1.0 / 2.4) - 0.055;
}

double clampedUnit(double value) {
  if (std::isnan(value)) return 0.0;
  return std::clamp(value, 0.0, 1.0);
}

// Linear Display P3 to linear sRGB, derived from the two spaces' primaries and the D65 white
// point; every row sums to 1, so greys stay grey.
constexpr double p3ToSRGB[3][3] = {
    {1.2249401762805598, -0.22494017628055996, 0.0},
    {-0.04205695470968816, 1.042056954709688, 0.0},
    {-0.019637554590334432, -0.07863604555063189, 1.0982736001409663},
};

}  // namespace

Color Color::inSRGB() const {
  if (space == ColorSpace::sRGB) return *this;
  const double linear[3] = {linearised(red), linearised(green), linearised(blue)};
  double mapped[3];
  for (int row = 0; row < 3; ++row) {
    mapped[row] =
        p3ToSRGB[row][0] * linear[0] + p3ToSRGB[row][1] * linear[1] + p3ToSRGB[row][2] * linear[2];
  }
  return Color::sRGB(clampedUnit(encoded(clampedUnit(mapped[0]))),
                     clampedUnit(encoded(clampedUnit(mapped[1]))),
                     clampedUnit(encoded(clampedUnit(mapped[2]))), opacity);
}

Color Color::over(const Color& background) const {
  const Color top = inSRGB();
  const Color bottom = background.inSRGB();
  const double alpha = clampedUnit(top.opacity);
  const auto mix = [alpha](double upper, double lower) {
    return upper * alpha + lower * (1 - alpha);
  };
  return Color::sRGB(mix(top.red, bottom.red), mix(top.green, bottom.green),
                     mix(top.blue, bottom.blue));
}

double Color::relativeLuminance() const {
  const Color colour = inSRGB();
  return 0.2126 * linearised(colour.red) + 0.7152 * linearised(colour.green) +
         0.0722 * linearised(colour.blue);
}

double contrastRatio(const Color& first, const Color& second) {
  const double a = first.relativeLuminance();
  const double b = second.relativeLuminance();
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

}  // namespace brimly
