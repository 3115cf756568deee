#pragma once

#include <QLockFile>
#include <QString>
#include <functional>

namespace brimly {

// Keeps one Brimly running per user: the first process holds a lock file in the user's runtime
// directory for its whole life; a later one finds it held and leaves. The lock belongs to a live
// process, so a crashed instance's file is taken over at once, whatever its age.
class SingleInstanceLock {
 public:
  explicit SingleInstanceLock(const QString& lockFilePath);

  // True when this process now holds the lock (or already did); false while another holds it.
  bool tryAcquire();
  QString path() const { return path_; }

  // The lock file for `bundleIdentifier` in this user's runtime directory.
  static QString defaultPath(const QString& bundleIdentifier);
  // Where the lock goes: $XDG_RUNTIME_DIR when it names a directory, else the runtime location
  // Qt makes up (asked only then, because it complains when the variable is unset), else the
  // temporary directory.
  static QString chooseDirectory(const QString& xdgRuntimeDir,
                                 const std::function<QString()>& qtRuntimeLocation,
                                 const QString& tempDir);

 private:
  QString path_;
  QLockFile lock_;
};

}  // namespace brimly
