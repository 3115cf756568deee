#pragma once

namespace brimly {

// Where the power comes from and which way it flows. `discharging` and `charging` carry the
// magnitude of the flow in watts.
class PowerState {
 public:
  enum class Kind { discharging, charging, acIdle, unknown };

  PowerState() = default;  // unknown

  static PowerState discharging(double watts) { return PowerState(Kind::discharging, watts); }
  static PowerState charging(double watts) { return PowerState(Kind::charging, watts); }
  static PowerState acIdle() { return PowerState(Kind::acIdle, 0.0); }
  static PowerState unknown() { return PowerState(); }

  Kind kind() const { return kind_; }
  // The flow carried by `discharging` and `charging`; 0 for the other two.
  double watts() const { return watts_; }

  // Equal when the cases are equal and, for the two with a payload, the watts are equal.
  bool operator==(const PowerState& other) const;

 private:
  PowerState(Kind kind, double watts) : kind_(kind), watts_(watts) {}

  Kind kind_ = Kind::unknown;
  double watts_ = 0.0;
};

}  // namespace brimly
