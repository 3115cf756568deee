#include "app/SingleInstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <cerrno>
#include <cstring>
#include <string>

namespace brimly {
namespace {

QString systemError(int error) {
  return QString::fromLocal8Bit(std::strerror(error));
}

}  // namespace

SingleInstanceLock::SingleInstanceLock(const QString& lockFilePath) : path_(lockFilePath) {}

SingleInstanceLock::~SingleInstanceLock() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

SingleInstanceLock::Outcome SingleInstanceLock::tryAcquire() {
  if (descriptor_ >= 0) return Outcome::Acquired;
  reason_.clear();

  // Never follow a link planted at the path, never hand the descriptor to a child program, and
  // never wait: O_NONBLOCK keeps a FIFO in the way from holding the launch up.
  const QByteArray nativePath = QFile::encodeName(path_);
  const int descriptor =
      ::open(nativePath.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
  if (descriptor < 0) {
    const int error = errno;
    reason_ = QStringLiteral("cannot open %1: %2").arg(path_, systemError(error));
    return Outcome::Unavailable;
  }
  struct stat status {};
  if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
    ::close(descriptor);
    reason_ = QStringLiteral("%1 is not a regular file").arg(path_);
    return Outcome::Unavailable;
  }
  // Another user's lock says nothing about this user's Brimly: it is never taken, nor waited for.
  if (status.st_uid != ::geteuid()) {
    ::close(descriptor);
    reason_ = QStringLiteral("%1 belongs to another user").arg(path_);
    return Outcome::Unavailable;
  }

  int locked;
  do {
    locked = ::flock(descriptor, LOCK_EX | LOCK_NB);
  } while (locked != 0 && errno == EINTR);
  if (locked != 0) {
    const int error = errno;
    ::close(descriptor);
    if (error == EWOULDBLOCK) return Outcome::HeldByAnother;
    reason_ = QStringLiteral("cannot lock %1: %2").arg(path_, systemError(error));
    return Outcome::Unavailable;
  }
  descriptor_ = descriptor;

  // For whoever looks: the holder's process id. The lock itself is what counts, not this text.
  const std::string holder = std::to_string(::getpid()) + "\n";
  if (::ftruncate(descriptor_, 0) == 0) {
    [[maybe_unused]] const ssize_t written = ::write(descriptor_, holder.data(), holder.size());
  }
  return Outcome::Acquired;
}

QString SingleInstanceLock::unguardedMessage(const QString& reason) {
  QString oneLine = reason;
  oneLine.replace(QLatin1Char('\n'), QLatin1Char(' '));
  return QStringLiteral(
             "Brimly: no single-instance lock (%1); running without the single-instance "
             "guard")
      .arg(oneLine);
}

QString SingleInstanceLock::pathIn(const QString& directory, const QString& bundleIdentifier) {
  return QDir(directory).filePath(bundleIdentifier + ".lock");
}

}  // namespace brimly
