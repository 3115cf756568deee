#pragma once

#include <memory>

#include "platform/LoginItemPort.h"

namespace brimly {

// The application itself as a login item of the system's service management (SMAppService's main
// application service, macOS 13). Main thread only.
std::unique_ptr<LoginItemPort> makeMacLoginItem();

}  // namespace brimly
