#include "platform/SystemPlatform.h"

#include <cstdlib>
#include <filesystem>

#include "platform/linux/LinuxPlatformFactory.h"

namespace brimly {
namespace {

// BRIMLY_SYSTEM_ROOT names a folder that stands for "/" (a recorded machine's proc/ and sys/),
// so that the whole program can be tried against readings this machine does not have.
std::string systemRoot() {
  const char* root = std::getenv("BRIMLY_SYSTEM_ROOT");
  std::error_code error;
  if (root != nullptr && *root == '/' && std::filesystem::is_directory(root, error)) return root;
  return "/";
}

}  // namespace

std::unique_ptr<PlatformFactory> makeSystemPlatform() {
  return std::make_unique<LinuxPlatformFactory>(LinuxSources::system(systemRoot()));
}

}  // namespace brimly
