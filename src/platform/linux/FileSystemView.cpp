#include "platform/linux/FileSystemView.h"

namespace brimly {

std::string joinPath(std::string_view directory, std::string_view name) {
  std::string path(directory);
  if (!path.empty() && path.back() != '/') path += '/';
  path += name;
  return path;
}

}  // namespace brimly
