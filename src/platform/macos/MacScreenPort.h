#pragma once

#include <memory>

#include "platform/ScreenPort.h"

namespace brimly {

// The displays as AppKit describes them. Main thread only.
std::unique_ptr<ScreenPort> makeMacScreenPort();

}  // namespace brimly
