#pragma once

#include "sampling/PowerState.h"

namespace brimly {

// How a metric cell's bar is coloured: by load (CPU, GPU, RAM, DISK), by load in coarse steps
// (TEMP), by where the power comes from (PWR), which carries the power state, or dimmed, as a
// reading that could not be taken is (its bar is only the 2-point stub, which must not read as a
// low load).
class BarPalette {
 public:
  enum class Kind { usage, heat, power, absent };

  static BarPalette usage() { return BarPalette(Kind::usage, PowerState()); }
  static BarPalette heat() { return BarPalette(Kind::heat, PowerState()); }
  static BarPalette power(PowerState state) { return BarPalette(Kind::power, state); }
  static BarPalette absent() { return BarPalette(Kind::absent, PowerState()); }

  Kind kind() const { return kind_; }
  // The state carried by `power`; unknown for the others.
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
