#include "app/SingleInstanceLock.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace brimly {
namespace {

class SingleInstanceLockTest : public ::testing::Test {
 protected:
  QString lockPath() const { return QDir(directory_.path()).filePath("app.brimly.Brimly.lock"); }

  // A lock file as a process with this id would have left it: the format QLockFile writes,
  // taken from a real lock and with the id replaced.
  void leaveLockFileOf(qint64 pid) const {
    QByteArray contents;
    {
      QLockFile sample(QDir(directory_.path()).filePath("sample.lock"));
      ASSERT_TRUE(sample.tryLock(0));
      QFile file(QDir(directory_.path()).filePath("sample.lock"));
      ASSERT_TRUE(file.open(QIODevice::ReadOnly));
      contents = file.readAll();
    }
    const qsizetype firstLineEnd = contents.indexOf('\n');
    contents = QByteArray::number(pid) + contents.mid(firstLineEnd);
    QFile file(lockPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
  }

  QTemporaryDir directory_;
};

TEST_F(SingleInstanceLockTest, FirstInstanceTakesTheLock) {
  SingleInstanceLock lock(lockPath());
  EXPECT_TRUE(lock.tryAcquire());
  EXPECT_TRUE(QFile::exists(lockPath()));
}

TEST_F(SingleInstanceLockTest, SecondInstanceIsRefusedWhileTheFirstHoldsIt) {
  SingleInstanceLock first(lockPath());
  ASSERT_TRUE(first.tryAcquire());
  SingleInstanceLock second(lockPath());
  EXPECT_FALSE(second.tryAcquire());
}

TEST_F(SingleInstanceLockTest, LockIsFreeAgainOnceTheHolderIsGone) {
  {
    SingleInstanceLock first(lockPath());
    ASSERT_TRUE(first.tryAcquire());
  }
  SingleInstanceLock second(lockPath());
  EXPECT_TRUE(second.tryAcquire());
}

TEST_F(SingleInstanceLockTest, AcquiringTwiceKeepsTheLock) {
  SingleInstanceLock lock(lockPath());
  ASSERT_TRUE(lock.tryAcquire());
  EXPECT_TRUE(lock.tryAcquire());
}

TEST_F(SingleInstanceLockTest, CrashedInstancesLockIsTakenOverAtOnce) {
  QProcess finished;
  finished.start("true", {});
  ASSERT_TRUE(finished.waitForStarted());
  const qint64 deadPid = finished.processId();
  ASSERT_TRUE(finished.waitForFinished());
  leaveLockFileOf(deadPid);

  SingleInstanceLock lock(lockPath());
  EXPECT_TRUE(lock.tryAcquire());
}

TEST_F(SingleInstanceLockTest, LeftoverFileNamingThisVeryProcessDoesNotCount) {
  leaveLockFileOf(QCoreApplication::applicationPid());
  SingleInstanceLock lock(lockPath());
  EXPECT_TRUE(lock.tryAcquire());
}

TEST(SingleInstanceDirectory, RuntimeDirectoryFromTheEnvironmentComesFirst) {
  QTemporaryDir runtime;
  bool qtAsked = false;
  EXPECT_EQ(SingleInstanceLock::chooseDirectory(
                runtime.path(),
                [&] {
                  qtAsked = true;
                  return QString("/elsewhere");
                },
                "/tmp"),
            runtime.path());
  EXPECT_FALSE(qtAsked);
}

TEST(SingleInstanceDirectoryEdge, UnsetRuntimeDirectoryFallsBackToQtsChoice) {
  QTemporaryDir qtChoice;
  EXPECT_EQ(SingleInstanceLock::chooseDirectory(
                "", [&] { return qtChoice.path(); }, "/tmp"),
            qtChoice.path());
}

TEST(SingleInstanceDirectoryEdge, RuntimeDirectoryThatDoesNotExistIsSkipped) {
  QTemporaryDir qtChoice;
  EXPECT_EQ(SingleInstanceLock::chooseDirectory(
                "/no/such/runtime/dir", [&] { return qtChoice.path(); }, "/tmp"),
            qtChoice.path());
}

TEST(SingleInstanceDirectoryEdge, NothingUsableFallsBackToTheTemporaryDirectory) {
  EXPECT_EQ(SingleInstanceLock::chooseDirectory(
                "", [] { return QString(); }, "/var/tmp"),
            "/var/tmp");
}

TEST(SingleInstanceDirectory, DefaultPathIsNamedAfterTheBundleIdentifier) {
  QTemporaryDir runtime;
  qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
  EXPECT_EQ(SingleInstanceLock::defaultPath("app.brimly.Brimly"),
            QDir(runtime.path()).filePath("app.brimly.Brimly.lock"));
}

}  // namespace
}  // namespace brimly
