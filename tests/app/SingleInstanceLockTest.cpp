#include "app/SingleInstanceLock.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <functional>

#include "AnotherUser.h"

namespace brimly {
namespace {

using Outcome = SingleInstanceLock::Outcome;
using testing::canActAsAnotherUser;
using testing::kAnotherUser;
using testing::kNeedsTheSuperuser;

// Another process: it runs `body` and ends with the status that returns, or waits until killed.
class ChildProcess {
 public:
  ~ChildProcess() {
    if (pid_ > 0) {
      ::kill(pid_, SIGKILL);
      ::waitpid(pid_, nullptr, 0);
    }
  }

  // Starts a child that takes the lock at `path`, tells the parent what it got and then holds it
  // until it is killed. Returns what the child got.
  Outcome startHolding(const QString& path) {
    return static_cast<Outcome>(startChild([&] {
      SingleInstanceLock lock(path);
      hold(static_cast<char>(lock.tryAcquire()));
    }));
  }

  // Starts a child that opens the file at `path`, becomes the user `user` and holds an exclusive
  // flock on it until it is killed, as that user's own Brimly would. True once it holds it.
  bool startLockingAs(uid_t user, const QString& path) {
    return startChild([&] {
             const int fd = ::open(QFile::encodeName(path).constData(), O_RDWR);
             const bool locked = fd >= 0 && ::setgid(user) == 0 && ::setuid(user) == 0 &&
                                 ::flock(fd, LOCK_EX | LOCK_NB) == 0;
             hold(locked ? 1 : 0);
           }) == 1;
  }

  // Kills the child without letting it tidy anything up, as a crash would.
  void crash() {
    ::kill(pid_, SIGKILL);
    ::waitpid(pid_, nullptr, 0);
    pid_ = -1;
  }

  // Runs `body` in a child and returns its exit status.
  static int run(const std::function<int()>& body) {
    const pid_t pid = ::fork();
    if (pid == 0) ::_exit(body());
    int status = 0;
    ::waitpid(pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  // Runs `body` in a child, which calls hold() with what it has to say; returns that.
  char startChild(const std::function<void()>& body) {
    if (::pipe(toParent_) != 0) return -1;
    pid_ = ::fork();
    if (pid_ == 0) {
      ::close(toParent_[0]);
      body();
      ::_exit(1);
    }
    ::close(toParent_[1]);
    char answer = -1;
    const ssize_t got = ::read(toParent_[0], &answer, 1);
    ::close(toParent_[0]);
    EXPECT_EQ(got, 1);
    return answer;
  }

  // In the child: tells the parent `answer`, then waits to be killed.
  [[noreturn]] void hold(char answer) {
    [[maybe_unused]] const ssize_t written = ::write(toParent_[1], &answer, 1);
    for (;;)
      ::pause();
  }

  pid_t pid_ = -1;
  int toParent_[2] = {-1, -1};
};

class SingleInstanceLockTest : public ::testing::Test {
 protected:
  QString lockPath() const { return QDir(directory_.path()).filePath("app.brimly.Brimly.lock"); }

  void writeLockFile(const QByteArray& contents) const {
    QFile file(lockPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(contents), contents.size());
  }

  QTemporaryDir directory_;
};

TEST_F(SingleInstanceLockTest, EmptyLockFileIsNotAnotherInstance) {
  writeLockFile("");
  SingleInstanceLock lock(lockPath());
  EXPECT_EQ(lock.tryAcquire(), Outcome::Acquired);
}

TEST_F(SingleInstanceLockTest, GarbageInTheLockFileIsNotAnotherInstance) {
  static constexpr char garbage[] = "\x01\xff garbage\n\n\0\0 not a pid";
  writeLockFile(QByteArray(garbage, sizeof garbage - 1));  // the zero bytes included
  SingleInstanceLock lock(lockPath());
  EXPECT_EQ(lock.tryAcquire(), Outcome::Acquired);
}

TEST_F(SingleInstanceLockTest, LockWrittenUnderAnotherHostNameIsNotAnotherInstance) {
  // What a lock file of another machine (a shared home, a restored backup) says: process 1 there.
  writeLockFile("1\nbrimly\nsome-other-host\n0123456789abcdef0123456789abcdef\n");
  SingleInstanceLock lock(lockPath());
  EXPECT_EQ(lock.tryAcquire(), Outcome::Acquired);
}

TEST_F(SingleInstanceLockTest, DirectoryWhereTheLockFileShouldBeMakesTheLockUnavailable) {
  ASSERT_TRUE(QDir(directory_.path()).mkdir("app.brimly.Brimly.lock"));
  SingleInstanceLock lock(lockPath());
  EXPECT_EQ(lock.tryAcquire(), Outcome::Unavailable);
  EXPECT_TRUE(lock.reason().contains(lockPath())) << lock.reason().toStdString();
}

TEST_F(SingleInstanceLockTest, FifoWhereTheLockFileShouldBeMakesTheLockUnavailableAtOnce) {
  ASSERT_EQ(::mkfifo(QFile::encodeName(lockPath()).constData(), 0600), 0);
  SingleInstanceLock lock(lockPath());
  EXPECT_EQ(lock.tryAcquire(), Outcome::Unavailable);
}

TEST_F(SingleInstanceLockTest, LinkAtThePathIsNotFollowed) {
  const QString target = QDir(directory_.path()).filePath("elsewhere");
  ASSERT_TRUE(QFile::link(target, lockPath()));
  SingleInstanceLock lock(lockPath());
  EXPECT_EQ(lock.tryAcquire(), Outcome::Unavailable);
  EXPECT_FALSE(QFile::exists(target));
}

TEST_F(SingleInstanceLockTest, RuntimeDirectoryThatCannotBeWrittenMakesTheLockUnavailable) {
  ASSERT_EQ(::chmod(QFile::encodeName(directory_.path()).constData(), 0500), 0);
  const QString path = lockPath();
  // Run as an ordinary user: the superuser may write anywhere.
  const int status = ChildProcess::run([&] {
    if (canActAsAnotherUser() && (::setgid(kAnotherUser) != 0 || ::setuid(kAnotherUser) != 0)) {
      return 100;
    }
    SingleInstanceLock lock(path);
    return static_cast<int>(lock.tryAcquire());
  });
  ::chmod(QFile::encodeName(directory_.path()).constData(), 0700);
  EXPECT_EQ(status, static_cast<int>(Outcome::Unavailable));
}

TEST_F(SingleInstanceLockTest, LockFileOfAnotherUserIsNeverTakenNorSteppedAsideFor) {
  if (!canActAsAnotherUser()) GTEST_SKIP() << kNeedsTheSuperuser;
  writeLockFile("");
  const QByteArray path = QFile::encodeName(lockPath());
  ASSERT_EQ(::chmod(path.constData(), 0666), 0);
  ASSERT_EQ(::chown(path.constData(), kAnotherUser, kAnotherUser), 0);
  // That user holds its lock, as a Brimly of theirs would.
  ChildProcess holder;
  ASSERT_TRUE(holder.startLockingAs(kAnotherUser, lockPath()));

  SingleInstanceLock lock(lockPath());
  EXPECT_EQ(lock.tryAcquire(), Outcome::Unavailable);
  EXPECT_EQ(lock.reason(), lockPath() + " belongs to another user");
}

TEST_F(SingleInstanceLockTest, LockInAFolderThatDoesNotExistIsUnavailable) {
  SingleInstanceLock lock(QDir(directory_.path()).filePath("gone/app.brimly.Brimly.lock"));
  EXPECT_EQ(lock.tryAcquire(), Outcome::Unavailable);
  EXPECT_FALSE(lock.reason().isEmpty());
}

TEST_F(SingleInstanceLockTest, FirstInstanceTakesTheLock) {
  SingleInstanceLock lock(lockPath());
  EXPECT_EQ(lock.tryAcquire(), Outcome::Acquired);
  EXPECT_TRUE(QFile::exists(lockPath()));
}

TEST_F(SingleInstanceLockTest, LockFileIsForTheUserAlone) {
  SingleInstanceLock lock(lockPath());
  ASSERT_EQ(lock.tryAcquire(), Outcome::Acquired);
  struct stat status {};
  ASSERT_EQ(::stat(QFile::encodeName(lockPath()).constData(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST_F(SingleInstanceLockTest, SecondLockInTheSameProcessIsRefusedWhileTheFirstHoldsIt) {
  SingleInstanceLock first(lockPath());
  ASSERT_EQ(first.tryAcquire(), Outcome::Acquired);
  SingleInstanceLock second(lockPath());
  EXPECT_EQ(second.tryAcquire(), Outcome::HeldByAnother);
}

TEST_F(SingleInstanceLockTest, LiveHolderInAnotherProcessRefusesTheLock) {
  ChildProcess holder;
  ASSERT_EQ(holder.startHolding(lockPath()), Outcome::Acquired);
  SingleInstanceLock lock(lockPath());
  EXPECT_EQ(lock.tryAcquire(), Outcome::HeldByAnother);
}

TEST_F(SingleInstanceLockTest, LockIsTakenAtOnceWhenItsHolderDies) {
  ChildProcess holder;
  ASSERT_EQ(holder.startHolding(lockPath()), Outcome::Acquired);
  SingleInstanceLock lock(lockPath());
  ASSERT_EQ(lock.tryAcquire(), Outcome::HeldByAnother);
  holder.crash();
  EXPECT_EQ(lock.tryAcquire(), Outcome::Acquired);
}

TEST_F(SingleInstanceLockTest, LockIsFreeAgainOnceTheHolderIsGone) {
  {
    SingleInstanceLock first(lockPath());
    ASSERT_EQ(first.tryAcquire(), Outcome::Acquired);
  }
  SingleInstanceLock second(lockPath());
  EXPECT_EQ(second.tryAcquire(), Outcome::Acquired);
}

TEST_F(SingleInstanceLockTest, AcquiringTwiceKeepsTheLock) {
  SingleInstanceLock lock(lockPath());
  ASSERT_EQ(lock.tryAcquire(), Outcome::Acquired);
  EXPECT_EQ(lock.tryAcquire(), Outcome::Acquired);
}

TEST_F(SingleInstanceLockTest, HeldLockIsNotPassedToProgramsBrimlyStarts) {
  SingleInstanceLock lock(lockPath());
  ASSERT_EQ(lock.tryAcquire(), Outcome::Acquired);
  // A program started from here (exec) keeps no descriptor of the lock file open.
  const QByteArray path = QFile::encodeName(lockPath());
  const int status = ChildProcess::run([&] {
    ::execl("/bin/sh", "sh", "-c",
            "for fd in /proc/self/fd/*; do [ \"$(readlink \"$fd\")\" = \"$0\" ] && exit 1; done; "
            "exit 0",
            path.constData(), static_cast<char*>(nullptr));
    return 127;
  });
  EXPECT_EQ(status, 0);
}

TEST(SingleInstanceUnguardedMessage, IsOneLineThatSaysWhyAndThatBrimlyRunsAnyway) {
  const QString message =
      SingleInstanceLock::unguardedMessage("cannot open /run/x.lock: Is a directory\nmore");
  EXPECT_FALSE(message.contains('\n'));
  EXPECT_TRUE(message.startsWith("Brimly: "));
  EXPECT_TRUE(message.contains("cannot open /run/x.lock: Is a directory"));
  EXPECT_TRUE(message.contains("running without the single-instance guard"));
}

TEST(SingleInstanceLockPath, IsNamedAfterTheBundleIdentifierInTheRuntimeFolder) {
  EXPECT_EQ(SingleInstanceLock::pathIn("/run/user/1000", "app.brimly.Brimly"),
            "/run/user/1000/app.brimly.Brimly.lock");
}

}  // namespace
}  // namespace brimly
