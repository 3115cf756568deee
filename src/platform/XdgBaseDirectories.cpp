#include "platform/XdgBaseDirectories.h"

#include <cstdlib>

namespace brimly {
namespace {

// `path` with each run of slashes made one and none at its end ("/" stays "/").
std::string tidied(std::string_view path) {
  std::string tidy;
  for (const char c : path) {
    if (c == '/' && !tidy.empty() && tidy.back() == '/') continue;
    tidy += c;
  }
  if (tidy.size() > 1 && tidy.back() == '/') tidy.pop_back();
  return tidy;
}

}  // namespace

bool isAbsoluteBaseDirectory(const char* value) {
  return value != nullptr && value[0] == '/';
}

std::string configHome(const char* xdgConfigHome, const char* home) {
  if (isAbsoluteBaseDirectory(xdgConfigHome)) return tidied(xdgConfigHome);
  if (isAbsoluteBaseDirectory(home)) return tidied(std::string(home) + "/.config");
  return {};
}

std::string configHomeOfThisProcess() {
  return configHome(std::getenv("XDG_CONFIG_HOME"), std::getenv("HOME"));
}

}  // namespace brimly
