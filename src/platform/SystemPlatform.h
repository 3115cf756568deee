#pragma once

#include <memory>

#include "platform/PlatformFactory.h"

namespace brimly {

// The readers of the system this program runs on; the build links the one backend that fits.
std::unique_ptr<PlatformFactory> makeSystemPlatform();

}  // namespace brimly
