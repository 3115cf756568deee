#pragma once

#include <memory>

#include "platform/CpuTicksPort.h"

namespace brimly {

// Reads the processor tick counters (host CPU load statistics) on macOS.
std::unique_ptr<CpuTicksPort> makeMacCpuTicksPort();

}  // namespace brimly
