#pragma once

#include <memory>

#include "platform/AcceleratorPort.h"

namespace brimly {

// Reads the GPU accelerator services' properties on macOS.
std::unique_ptr<AcceleratorPort> makeMacAcceleratorPort();

}  // namespace brimly
