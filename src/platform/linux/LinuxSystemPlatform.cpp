#include "platform/SystemPlatform.h"

#include "platform/linux/LinuxPlatformFactory.h"

namespace brimly {

std::unique_ptr<PlatformFactory> makeSystemPlatform() {
  return std::make_unique<LinuxPlatformFactory>(LinuxSources::system());
}

}  // namespace brimly
