#include "panel/PathElement.h"

#include <cmath>
#include <numbers>

namespace brimly {

namespace {

Point onCircle(Point centre, double radius, double angle) {
  return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

}  // namespace

double PathElement::sweep() const {
  constexpr double fullTurn = 2.0 * std::numbers::pi;
  double turn = std::fmod(endAngle - startAngle, fullTurn);
  if (turn < 0.0) turn += fullTurn;
  return turn;
}

Point PathElement::arcStart() const {
  return onCircle(centre, radius, startAngle);
}

Point PathElement::arcEnd() const {
  return onCircle(centre, radius, endAngle);
}

}  // namespace brimly
