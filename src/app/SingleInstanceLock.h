#pragma once

#include <QString>

namespace brimly {

// Keeps one Brimly running per user: the first process holds an exclusive lock on a file in the
// user's private runtime folder (RuntimeDirectory.h) for its whole life; a later one finds it held
// and leaves. The kernel drops the lock when its holder ends, however it ends, so a crashed
// instance never blocks the next one, and what the file contains does not matter. Only a regular
// file of this user's is ever locked: a link, a FIFO, a folder or another user's file at the path
// makes the lock unavailable, never another user's lock that Brimly would step aside for.
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

  // The lock file for `bundleIdentifier` in the runtime folder `directory`.
  static QString pathIn(const QString& directory, const QString& bundleIdentifier);

 private:
  QString path_;
  QString reason_;
  int descriptor_ = -1;
};

}  // namespace brimly
