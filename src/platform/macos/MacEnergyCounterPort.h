#pragma once

#include <memory>

#include "platform/EnergyCounterPort.h"

namespace brimly {

// Reads the cumulative counters of the "Energy Model" report channels, converted to nanojoules.
// The report library is private: it is loaded by path at run time, and where it or its access is
// missing the port says it is unavailable.
std::unique_ptr<EnergyCounterPort> makeMacEnergyCounterPort();

}  // namespace brimly
