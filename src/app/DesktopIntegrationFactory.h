#pragma once

#include <memory>

#include "app/DesktopIntegration.h"

namespace brimly {

// The integration for the desktop the running Qt application talks to; called after the
// application object exists. The build links the one definition that fits the system.
std::unique_ptr<DesktopIntegration> makeDesktopIntegration();

}  // namespace brimly
