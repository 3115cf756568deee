#pragma once

#include <string>

#include "sampling/PowerState.h"

namespace brimly {

// The power state as the report prints it: the case name, and for the two cases that carry a
// flow the watts in parentheses: "discharging(watts: 7.25)", "charging(watts: 12.0)", "acIdle",
// "unknown".
std::string powerStateText(const PowerState& state);

}  // namespace brimly
