#include "app/RuntimeDirectory.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <cerrno>
#include <cstdlib>
#include <system_error>

#include "core/PathText.h"
#include "platform/XdgBaseDirectories.h"

namespace brimly {
namespace {

QString systemMessage(int error) {
  return QString::fromStdString(std::generic_category().message(error));
}

// `value` as a path Brimly can use: absolute and UTF-8; else nothing.
std::optional<QString> usablePath(const char* value) {
  if (!isAbsoluteBaseDirectory(value) || !isUtf8(value)) return std::nullopt;
  return QFile::decodeName(value);
}

}  // namespace

std::optional<QString> whyNotPrivateFolder(const QString& path, unsigned userId) {
  struct stat status {};
  if (::lstat(QFile::encodeName(path).constData(), &status) != 0) {
    const int error = errno;
    return QStringLiteral("cannot use %1: %2").arg(path, systemMessage(error));
  }
  if (S_ISLNK(status.st_mode)) return QStringLiteral("%1 is a symbolic link").arg(path);
  if (!S_ISDIR(status.st_mode)) return QStringLiteral("%1 is not a folder").arg(path);
  if (status.st_uid != userId) return QStringLiteral("%1 belongs to another user").arg(path);
  if ((status.st_mode & 077) != 0) return QStringLiteral("%1 is open to other users").arg(path);
  return std::nullopt;
}

RuntimeDirectory chooseRuntimeDirectory(const char* xdgRuntimeDir, const char* temporaryDir,
                                        unsigned userId) {
  if (const std::optional<QString> runtime = usablePath(xdgRuntimeDir)) {
    if (!whyNotPrivateFolder(*runtime, userId)) return {*runtime, {}};
  }
  const QString own = QDir::cleanPath(
      QDir(temporaryFolder(temporaryDir)).filePath(QStringLiteral("brimly-%1").arg(userId)));
  // Made for the user alone. When something is there already, the checks below decide: mkdir()
  // never follows a link, and lstat() looks at the link itself.
  if (::mkdir(QFile::encodeName(own).constData(), 0700) != 0 && errno != EEXIST) {
    const int error = errno;
    return {{}, QStringLiteral("cannot create %1: %2").arg(own, systemMessage(error))};
  }
  if (const std::optional<QString> problem = whyNotPrivateFolder(own, userId))
    return {{}, *problem};
  return {own, {}};
}

QString temporaryFolder(const char* temporaryDir) {
  return usablePath(temporaryDir).value_or(QStringLiteral("/tmp"));
}

RuntimeDirectory runtimeDirectoryOfThisProcess() {
  return chooseRuntimeDirectory(std::getenv("XDG_RUNTIME_DIR"), std::getenv("TMPDIR"), ::geteuid());
}

}  // namespace brimly
