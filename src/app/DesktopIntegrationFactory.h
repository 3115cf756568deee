#pragma once

#include <memory>

#include "app/DesktopIntegration.h"

namespace brimly {

// Before the Qt application exists: whether there is a desktop to show the panel on. Qt itself
// would end the process with a core dump when there is none.
bool desktopAvailable();

// Before the Qt application exists: asks Qt for the platform plugin the panel works best with,
// unless the user chose one.
void choosePlatformPlugin();

// The integration for the desktop the running Qt application talks to; called after the
// application object exists.
std::unique_ptr<DesktopIntegration> makeDesktopIntegration();

// The build links the one definition of these three that fits the system.

}  // namespace brimly
