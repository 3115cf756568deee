#include "platform/linux/RootedFileSystem.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "platform/linux/NaturalOrder.h"

namespace brimly {

RootedFileSystem::RootedFileSystem(std::string root)
    : root_(root.empty() ? std::string(1, '/') : std::move(root)) {}

std::string RootedFileSystem::absolute(std::string_view path) const {
  while (!path.empty() && path.front() == '/')
    path.remove_prefix(1);
  return joinPath(root_, path);
}

FileRead RootedFileSystem::read(std::string_view path) const {
  FileRead result;
  // Non-blocking, so that a FIFO planted in a tree cannot hang the sampler; regular, proc and
  // sysfs files ignore the flag.
  const int fd = ::open(absolute(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (fd < 0) {
    result.error = errno != 0 ? errno : EIO;
    return result;
  }
  char buffer[4096];
  while (result.text.size() < kReadCap) {
    const std::size_t wanted = std::min(sizeof buffer, kReadCap - result.text.size());
    const ssize_t count = ::read(fd, buffer, wanted);
    if (count < 0) {
      if (errno == EINTR) continue;
      result.error = errno != 0 ? errno : EIO;
      result.text.clear();
      break;
    }
    if (count == 0) break;
    result.text.append(buffer, static_cast<std::size_t>(count));
  }
  ::close(fd);
  return result;
}

std::vector<std::string> RootedFileSystem::list(std::string_view path) const {
  std::vector<std::string> names;
  DIR* directory = ::opendir(absolute(path).c_str());
  if (directory == nullptr) return names;
  while (const dirent* entry = ::readdir(directory)) {
    const std::string_view name = entry->d_name;
    if (name.empty() || name.front() == '.') continue;
    names.emplace_back(name);
  }
  ::closedir(directory);
  std::sort(names.begin(), names.end(),
            [](const std::string& a, const std::string& b) { return naturalLess(a, b); });
  return names;
}

bool RootedFileSystem::exists(std::string_view path) const {
  struct stat info {};
  return ::stat(absolute(path).c_str(), &info) == 0;
}

std::string RootedFileSystem::linkTarget(std::string_view path) const {
  char buffer[4096];
  const ssize_t length = ::readlink(absolute(path).c_str(), buffer, sizeof buffer);
  if (length <= 0) return {};
  return std::string(buffer, static_cast<std::size_t>(length));
}

}  // namespace brimly
