#pragma once

#include <memory>

#include "platform/DiskPort.h"

namespace brimly {

// Reads the start-up volume's capacities on macOS.
std::unique_ptr<DiskPort> makeMacDiskPort();

}  // namespace brimly
