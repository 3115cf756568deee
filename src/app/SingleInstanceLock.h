#pragma once

#include <QString>
#include <functional>

namespace brimly {

// Keeps one Brimly running per user: the first process holds an exclusive lock on a file in the
// user's runtime directory for its whole life; a later one finds it held and leaves. The kernel
// drops the lock when its holder ends, however it ends, so a crashed instance never blocks the
// next one, and what the file contains does not matter.
class SingleInstanceLock {
 public:
  enum class Outcome {
    Acquired,       // this process now holds the lock (or already did)
    HeldByAnother,  // another live process holds it
    Unavailable,    // no lock can be taken at that path; reason() says why
  };

  explicit SingleInstanceLock(const QString& lockFilePath);
  ~SingleInstanceLock();
  SingleInstanceLock(const SingleInstanceLock&) = delete;
  SingleInstanceLock& operator=(const SingleInstanceLock&) = delete;

  Outcome tryAcquire();
  QString path() const { return path_; }
  // After Unavailable: what stood in the way, in a few words with the path.
  QString reason() const { return reason_; }

  // The one line a process prints when it goes on without the guard.
  static QString unguardedMessage(const QString& reason);

  // The lock file for `bundleIdentifier` in this user's runtime directory.
  static QString defaultPath(const QString& bundleIdentifier);
  // This user's runtime directory, as chooseDirectory() picks it from the environment.
  static QString runtimeDirectory();
  // Where the lock goes: $XDG_RUNTIME_DIR when it names a directory, else the runtime location
  // Qt makes up (asked only then, because it complains when the variable is unset), else the
  // temporary directory.
  static QString chooseDirectory(const QString& xdgRuntimeDir,
                                 const std::function<QString()>& qtRuntimeLocation,
                                 const QString& tempDir);

 private:
  QString path_;
  QString reason_;
  int descriptor_ = -1;
};

}  // namespace brimly
