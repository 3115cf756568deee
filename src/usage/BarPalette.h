#pragma once

#include "sampling/PowerState.h"

namespace brimly {

// How a metric cell's bar is coloured: by load (CPU, GPU, RAM, DISK), by load in coarse steps
// (TEMP), or by where the power comes from (PWR), which carries the power state.
class BarPalette {
 public:
  enum class Kind { usage, heat, power };

  static BarPalette usage() { return BarPalette(Kind::usage, PowerState()); }
  static BarPalette heat() { return BarPalette(Kind::heat, PowerState()); }
  static BarPalette power(PowerState state) { return BarPalette(Kind::power, state); }

  Kind kind() const { return kind_; }
  // The state carried by `power`; unknown for the two others.
  const PowerState& powerState() const { return powerState_; }

  // Equal when the kinds are equal and, for `power`, the states are equal.
  bool operator==(const BarPalette& other) const {
    return kind_ == other.kind_ && (kind_ != Kind::power || powerState_ == other.powerState_);
  }

 private:
  BarPalette(Kind kind, PowerState state) : kind_(kind), powerState_(state) {}

  Kind kind_;
  PowerState powerState_;
};

}  // namespace brimly
