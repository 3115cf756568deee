#pragma once

#include <memory>

#include "platform/MemoryPort.h"

namespace brimly {

// Reads virtual-memory statistics, installed memory and swap usage on macOS.
std::unique_ptr<MemoryPort> makeMacMemoryPort();

}  // namespace brimly
