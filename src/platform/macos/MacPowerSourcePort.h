#pragma once

#include <memory>

#include "platform/PowerSourcePort.h"

namespace brimly {

// Reads the power-source list and the smart-battery registry entry on macOS.
std::unique_ptr<PowerSourcePort> makeMacPowerSourcePort();

}  // namespace brimly
