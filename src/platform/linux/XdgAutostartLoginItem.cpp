#include "platform/linux/XdgAutostartLoginItem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "core/BuildInfo.h"
#include "platform/linux/DesktopEntryText.h"

namespace brimly {
namespace {

std::string reason(const char* action, const QString& path, const std::string& why) {
  return std::string(action) + " " + path.toStdString() + ": " + why;
}

std::string systemMessage(int error) {
  return std::generic_category().message(error);
}

// The head of a regular file (or of what a symbolic link leads to), or nothing when there is no
// such file or it cannot be read. Opened without blocking, so that a FIFO in its place cannot hang
// the caller.
std::optional<std::string> readRegularFileHead(const QString& path, std::size_t cap) {
  const int fd =
      ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
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

// Creates `path` and its missing parents, each only for its owner, as `mkdir -p` does. The reason
// names the folder that could not be made.
std::optional<std::string> makeFolders(const QString& path) {
  const QByteArray full = QFile::encodeName(path);
  qsizetype next = 1;  // the root itself always exists
  while (next <= full.size()) {
    qsizetype end = full.indexOf('/', next);
    if (end < 0) end = full.size();
    const QByteArray prefix = full.left(end);
    next = end + 1;
    if (prefix.isEmpty() || prefix.endsWith('/')) continue;

    struct stat info {};
    if (::stat(prefix.constData(), &info) == 0) {
      if (S_ISDIR(info.st_mode)) continue;
      return reason("cannot create", QFile::decodeName(prefix), systemMessage(ENOTDIR));
    }
    if (errno != ENOENT)
      return reason("cannot create", QFile::decodeName(prefix), systemMessage(errno));
    if (::mkdir(prefix.constData(), 0700) != 0) {
      const int error = errno;
      // Someone else may have made it in the meantime.
      if (error == EEXIST && ::stat(prefix.constData(), &info) == 0 && S_ISDIR(info.st_mode)) {
        continue;
      }
      return reason("cannot create", QFile::decodeName(prefix), systemMessage(error));
    }
  }
  return std::nullopt;
}

}  // namespace

XdgAutostartLoginItem::XdgAutostartLoginItem(QString configHome, QString executablePath)
    : configHome_(configHome.startsWith('/') ? QDir::cleanPath(configHome) : QString()),
      executablePath_(std::move(executablePath)) {}

std::unique_ptr<XdgAutostartLoginItem> XdgAutostartLoginItem::forThisUser(
    const QString& executablePath) {
  return std::make_unique<XdgAutostartLoginItem>(
      chooseConfigHome(qEnvironmentVariable("XDG_CONFIG_HOME"), qEnvironmentVariable("HOME")),
      executablePath);
}

QString XdgAutostartLoginItem::chooseConfigHome(const QString& xdgConfigHome, const QString& home) {
  // Relative values are invalid in these variables and are ignored.
  if (xdgConfigHome.startsWith('/')) return QDir::cleanPath(xdgConfigHome);
  if (home.startsWith('/')) return QDir::cleanPath(home + "/.config");
  return {};
}

QString XdgAutostartLoginItem::autostartFolder() const {
  if (configHome_.isEmpty()) return {};
  return QDir(configHome_).filePath("autostart");
}

QString XdgAutostartLoginItem::entryPath() const {
  if (configHome_.isEmpty()) return {};
  return QDir(autostartFolder())
      .filePath(QString::fromUtf8(BuildInfo::bundleIdentifier) + ".desktop");
}

bool XdgAutostartLoginItem::isEnabled() const {
  const QString path = entryPath();
  if (path.isEmpty()) return false;
  const std::optional<std::string> text = readRegularFileHead(path, kReadCap);
  return text && autostartEntryIsActive(*text);
}

std::optional<std::string> XdgAutostartLoginItem::setEnabled(bool enabled) {
  return enabled ? writeEntry() : removeEntry();
}

std::optional<std::string> XdgAutostartLoginItem::writeEntry() const {
  const QString path = entryPath();
  if (path.isEmpty()) {
    return std::string("no configuration folder: neither XDG_CONFIG_HOME nor HOME is set");
  }
  const std::optional<std::string> exec =
      desktopExecValue(QFile::encodeName(executablePath_).toStdString());
  if (!exec) {
    return reason("cannot write", path,
                  "the program path \"" + executablePath_.toStdString() +
                      "\" cannot be started from a desktop entry");
  }
  if (auto failure = makeFolders(autostartFolder())) return failure;

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
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) {
    return reason("cannot write", path, file.errorString().toStdString());
  }
  const auto size = static_cast<qint64>(contents.size());
  if (file.write(contents.data(), size) != size || !file.commit()) {
    return reason("cannot write", path, file.errorString().toStdString());
  }
  return std::nullopt;
}

std::optional<std::string> XdgAutostartLoginItem::removeEntry() const {
  const QString path = entryPath();
  // No folder, no entry: it is off already.
  if (path.isEmpty()) return std::nullopt;
  if (::unlink(QFile::encodeName(path).constData()) == 0) return std::nullopt;
  const int error = errno;
  if (error == ENOENT || error == ENOTDIR) return std::nullopt;
  return reason("cannot remove", path, systemMessage(error));
}

}  // namespace brimly
