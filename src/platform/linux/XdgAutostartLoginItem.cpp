#include "platform/linux/XdgAutostartLoginItem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "core/BuildInfo.h"
#include "core/PathText.h"
#include "platform/UserFiles.h"
#include "platform/XdgBaseDirectories.h"
#include "platform/linux/DesktopEntryText.h"

namespace brimly {
namespace {

std::string systemMessage(int error) {
  return std::generic_category().message(error);
}

// The head of a regular file (or of what a symbolic link leads to), or nothing when there is no
// such file or it cannot be read. Opened without blocking, so that a FIFO in its place cannot hang
// the caller.
std::optional<std::string> readRegularFileHead(const std::string& path, std::size_t cap) {
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (fd < 0) return std::nullopt;
  struct stat info {};
  if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
    ::close(fd);
    return std::nullopt;
  }
  std::string text;
  char buffer[4096];
  while (text.size() < cap) {
    const std::size_t wanted = std::min(sizeof buffer, cap - text.size());
    const ssize_t count = ::read(fd, buffer, wanted);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) {
      ::close(fd);
      return std::nullopt;
    }
    if (count == 0) break;
    text.append(buffer, static_cast<std::size_t>(count));
  }
  ::close(fd);
  return text;
}

}  // namespace

XdgAutostartLoginItem::XdgAutostartLoginItem(std::string configHome, std::string executablePath)
    // The folder as the XDG rules take it: absolute, or none.
    : configHome_(brimly::configHome(configHome.c_str(), nullptr)),
      executablePath_(std::move(executablePath)) {}

std::unique_ptr<XdgAutostartLoginItem> XdgAutostartLoginItem::forThisUser(
    std::string executablePath) {
  return std::make_unique<XdgAutostartLoginItem>(configHomeOfThisProcess(),
                                                 std::move(executablePath));
}

std::string XdgAutostartLoginItem::autostartFolder() const {
  if (configHome_.empty()) return {};
  return (configHome_ == "/" ? std::string() : configHome_) + "/autostart";
}

std::string XdgAutostartLoginItem::entryPath() const {
  if (configHome_.empty()) return {};
  return autostartFolder() + "/" + BuildInfo::bundleIdentifier + ".desktop";
}

bool XdgAutostartLoginItem::isEnabled() const {
  const std::string path = entryPath();
  if (path.empty()) return false;
  const std::optional<std::string> text = readRegularFileHead(path, kReadCap);
  return text && autostartEntryIsActive(*text);
}

std::optional<std::string> XdgAutostartLoginItem::setEnabled(bool enabled) {
  return enabled ? writeEntry() : removeEntry();
}

std::optional<std::string> XdgAutostartLoginItem::writeEntry() const {
  const std::string path = entryPath();
  if (path.empty()) {
    return std::string(
        "no configuration folder: neither XDG_CONFIG_HOME nor HOME is an absolute path");
  }
  const std::optional<std::string> exec = desktopExecValue(executablePath_);
  if (!exec) {
    return "cannot write " + printablePath(path) + ": the program path \"" +
           printablePath(executablePath_) + "\" cannot be started from a desktop entry";
  }
  if (auto failure = makeUserFolders(autostartFolder())) return failure;

  const std::string contents =
      "[Desktop Entry]\n"
      "Type=Application\n"
      "Name=Brimly\n"
      "Comment=Glance-able system stats\n"
      "Exec=" +
      *exec +
      "\n"
      "Icon=" +
      std::string(BuildInfo::bundleIdentifier) +
      "\n"
      "Terminal=false\n"
      "X-GNOME-Autostart-enabled=true\n";
  return replaceUserFile(path, contents);
}

std::optional<std::string> XdgAutostartLoginItem::removeEntry() const {
  const std::string path = entryPath();
  // No folder, no entry: it is off already. A link at the path goes, never what it leads to.
  if (path.empty()) return std::nullopt;
  if (::unlink(path.c_str()) == 0) return std::nullopt;
  const int error = errno;
  if (error == ENOENT || error == ENOTDIR) return std::nullopt;
  return "cannot remove " + printablePath(path) + ": " + systemMessage(error);
}

}  // namespace brimly
