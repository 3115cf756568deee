#include "usage/ValueTransition.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace brimly {

namespace {

struct Look {
  double opacity;
  double lift;
};

// The moving characters' look at each step before the last. Leaving, they rise and fade but are
// still there; arriving, they come up from below and are already there: no step shows neither
// text. One step each way is enough to see where the change is, and each step is a repaint of a
// panel that may stay pinned open all day.
constexpr std::array<Look, ValueTransition::steps> looks{{
    {1.0, 0.0},    // the previous text as it was
    {0.4, 0.08},   // leaving
    {0.5, -0.06},  // arriving
}};
constexpr int firstArrivingStep = 2;

}  // namespace

ValueTransition::ValueTransition(std::vector<Character> previous, std::vector<Character> current)
    : previous_(std::move(previous)),
      current_(std::move(current)),
      previousStays_(previous_.size(), false),
      currentStays_(current_.size(), false) {
  // Both texts end at the same edge, so matching characters are found walking back from it.
  std::size_t p = previous_.size();
  std::size_t c = current_.size();
  while (p > 0 && c > 0) {
    const Character& old = previous_[p - 1];
    const Character& now = current_[c - 1];
    if (std::abs(old.beforeEnd - now.beforeEnd) < samePlace) {
      previousStays_[p - 1] = currentStays_[c - 1] = old.code == now.code;
      --p;
      --c;
    } else if (old.beforeEnd < now.beforeEnd) {
      --p;  // the old character lies nearer the edge: nothing of the new one is there
    } else {
      --c;
    }
  }
}

std::vector<ValueTransition::Drawn> ValueTransition::at(int step) const {
  step = std::clamp(step, 0, steps);
  const bool arrivingHalf = step >= firstArrivingStep;
  const Source source = arrivingHalf ? Source::current : Source::previous;
  const std::vector<bool>& stays = arrivingHalf ? currentStays_ : previousStays_;
  const Look moving = step == steps ? Look{1.0, 0.0} : looks[static_cast<std::size_t>(step)];
  std::vector<Drawn> drawn;
  drawn.reserve(stays.size());
  for (std::size_t i = 0; i < stays.size(); ++i) {
    const Look look = stays[i] ? Look{1.0, 0.0} : moving;
    drawn.push_back({source, i, look.opacity, look.lift});
  }
  return drawn;
}

}  // namespace brimly
