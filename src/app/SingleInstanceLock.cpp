#include "app/SingleInstanceLock.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace brimly {
namespace {

// Qt warns on stderr when $XDG_RUNTIME_DIR is unset; a second instance must leave silently.
QString quietRuntimeLocation() {
  const QtMessageHandler previous =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  const QString location = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  qInstallMessageHandler(previous);
  return location;
}

}  // namespace

SingleInstanceLock::SingleInstanceLock(const QString& lockFilePath)
    : path_(lockFilePath), lock_(lockFilePath) {
  // The lock lives as long as the process; only a dead owner makes it stale, never its age.
  lock_.setStaleLockTime(0);
}

bool SingleInstanceLock::tryAcquire() {
  if (lock_.isLocked()) return true;
  if (lock_.tryLock(0)) return true;
  // A file naming this very process is not another instance: it was left behind by an earlier
  // process that had the same id (a reused pid in a fresh container). Nobody holds its native
  // lock, so it can be removed.
  qint64 pid = 0;
  QString host;
  QString application;
  if (lock_.error() == QLockFile::LockFailedError && lock_.getLockInfo(&pid, &host, &application) &&
      pid == QCoreApplication::applicationPid() && lock_.removeStaleLockFile()) {
    return lock_.tryLock(0);
  }
  return false;
}

QString SingleInstanceLock::defaultPath(const QString& bundleIdentifier) {
  const QString directory = chooseDirectory(qEnvironmentVariable("XDG_RUNTIME_DIR"),
                                            quietRuntimeLocation, QDir::tempPath());
  return QDir(directory).filePath(bundleIdentifier + ".lock");
}

QString SingleInstanceLock::chooseDirectory(const QString& xdgRuntimeDir,
                                            const std::function<QString()>& qtRuntimeLocation,
                                            const QString& tempDir) {
  if (!xdgRuntimeDir.isEmpty() && QFileInfo(xdgRuntimeDir).isDir()) return xdgRuntimeDir;
  const QString runtime = qtRuntimeLocation ? qtRuntimeLocation() : QString();
  if (!runtime.isEmpty() && QFileInfo(runtime).isDir()) return runtime;
  return tempDir;
}

}  // namespace brimly
