#pragma once

#include <memory>

#include "platform/PlatformFactory.h"

namespace brimly {

// The readers of the system this program was built for (one backend per platform).
std::unique_ptr<PlatformFactory> makeSystemPlatform();

}  // namespace brimly
