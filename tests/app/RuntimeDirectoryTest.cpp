#include "app/RuntimeDirectory.h"

#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "AnotherUser.h"

namespace brimly {
namespace {

using testing::canActAsAnotherUser;
using testing::kAnotherUser;
using testing::kNeedsTheSuperuser;

// Every folder lives in a private temporary folder, which stands for both $XDG_RUNTIME_DIR and
// $TMPDIR: the machine's own /tmp is never touched.
class RuntimeDirectoryTest : public ::testing::Test {
 protected:
  const unsigned me = ::geteuid();
  QString path(const QString& name) const { return QDir(root_.path()).filePath(name); }
  QByteArray bytes(const QString& name) const { return QFile::encodeName(path(name)); }
  QString makeFolder(const QString& name, mode_t mode) const {
    EXPECT_EQ(::mkdir(bytes(name).constData(), mode), 0);
    EXPECT_EQ(::chmod(bytes(name).constData(), mode), 0);  // whatever the umask took away
    return path(name);
  }
  // The folder of one's own in the temporary folder `temporary`.
  QString ownFolderIn(const QString& temporary) const {
    return QDir(temporary).filePath(QStringLiteral("brimly-%1").arg(me));
  }
  RuntimeDirectory choose(const QByteArray& runtime, const QString& temporary) const {
    const QByteArray tmp = QFile::encodeName(temporary);
    return chooseRuntimeDirectory(runtime.isNull() ? nullptr : runtime.constData(), tmp.constData(),
                                  me);
  }
  static mode_t modeOf(const QString& folder) {
    struct stat status {};
    if (::lstat(QFile::encodeName(folder).constData(), &status) != 0) return 0;
    return status.st_mode & 07777;
  }

  QTemporaryDir root_;
};

TEST_F(RuntimeDirectoryTest, RuntimeFolderOfTheUserAloneIsUsed) {
  const QString runtime = makeFolder("runtime", 0700);
  const QString temporary = makeFolder("tmp", 0700);
  const RuntimeDirectory chosen = choose(QFile::encodeName(runtime), temporary);
  EXPECT_EQ(chosen.path, runtime);
  EXPECT_TRUE(chosen.problem.isEmpty());
  EXPECT_FALSE(QFileInfo::exists(ownFolderIn(temporary)));
}

TEST_F(RuntimeDirectoryTest, UnsetRuntimeFolderGivesAFolderOfOnesOwnMadeForTheUserAlone) {
  const QString temporary = makeFolder("tmp", 0777);
  const RuntimeDirectory chosen = choose(QByteArray(), temporary);
  EXPECT_EQ(chosen.path, ownFolderIn(temporary));
  EXPECT_TRUE(QFileInfo(chosen.path).isDir());
  EXPECT_EQ(modeOf(chosen.path), 0700u);
  // Found again by the next launch.
  EXPECT_EQ(choose(QByteArray(), temporary).path, chosen.path);
}

TEST_F(RuntimeDirectoryTest, RelativeEmptyOrNonUtf8RuntimeFolderIsIgnored) {
  const QString temporary = makeFolder("tmp", 0700);
  for (const QByteArray& value :
       {QByteArray("relative"), QByteArray(""), QFile::encodeName(root_.path()) + "/\xff\xfe"}) {
    EXPECT_EQ(choose(value, temporary).path, ownFolderIn(temporary)) << value.toStdString();
  }
}

TEST_F(RuntimeDirectoryTest, RuntimeFolderOpenToOthersIsIgnored) {
  const QString temporary = makeFolder("tmp", 0700);
  for (const mode_t mode : {0755, 0770, 0701, 0777}) {
    const QString runtime = makeFolder(QStringLiteral("runtime-%1").arg(mode, 0, 8), mode);
    EXPECT_EQ(choose(QFile::encodeName(runtime), temporary).path, ownFolderIn(temporary))
        << std::oct << mode;
  }
}

TEST_F(RuntimeDirectoryTest, RuntimeFolderThatIsALinkIsIgnored) {
  const QString temporary = makeFolder("tmp", 0700);
  const QString real = makeFolder("real", 0700);
  ASSERT_TRUE(QFile::link(real, path("link")));
  EXPECT_EQ(choose(bytes("link"), temporary).path, ownFolderIn(temporary));
}

TEST_F(RuntimeDirectoryTest, RuntimeFolderOfAnotherUserIsIgnored) {
  if (!canActAsAnotherUser()) GTEST_SKIP() << kNeedsTheSuperuser;
  // As under `sudo`, which keeps the caller's $XDG_RUNTIME_DIR.
  const QString runtime = makeFolder("runtime", 0700);
  ASSERT_EQ(::chown(bytes("runtime").constData(), kAnotherUser, kAnotherUser), 0);
  const QString temporary = makeFolder("tmp", 0700);
  EXPECT_EQ(choose(QFile::encodeName(runtime), temporary).path, ownFolderIn(temporary));
}

TEST_F(RuntimeDirectoryTest, FolderOfOnesOwnSquattedByAnotherUserIsNotUsed) {
  if (!canActAsAnotherUser()) GTEST_SKIP() << kNeedsTheSuperuser;
  const QString temporary = makeFolder("tmp", 01777);
  const QString squatted = ownFolderIn(temporary);
  ASSERT_EQ(::mkdir(QFile::encodeName(squatted).constData(), 0777), 0);
  ASSERT_EQ(::chown(QFile::encodeName(squatted).constData(), kAnotherUser, kAnotherUser), 0);
  const RuntimeDirectory chosen = choose(QByteArray(), temporary);
  EXPECT_TRUE(chosen.path.isEmpty());
  EXPECT_EQ(chosen.problem, squatted + " belongs to another user");
}

TEST_F(RuntimeDirectoryTest, LinkInPlaceOfTheFolderOfOnesOwnIsNotFollowed) {
  const QString temporary = makeFolder("tmp", 0700);
  const QString elsewhere = makeFolder("elsewhere", 0700);
  ASSERT_TRUE(QFile::link(elsewhere, ownFolderIn(temporary)));
  const RuntimeDirectory chosen = choose(QByteArray(), temporary);
  EXPECT_TRUE(chosen.path.isEmpty());
  EXPECT_TRUE(chosen.problem.contains("is a symbolic link")) << chosen.problem.toStdString();
  EXPECT_TRUE(QDir(elsewhere).isEmpty());
}

TEST_F(RuntimeDirectoryTest, FolderOfOnesOwnOpenToOthersOrNoFolderIsNotUsed) {
  const QString temporary = makeFolder("tmp", 0700);
  const QString own = ownFolderIn(temporary);
  ASSERT_EQ(::mkdir(QFile::encodeName(own).constData(), 0755), 0);
  ASSERT_EQ(::chmod(QFile::encodeName(own).constData(), 0755), 0);
  EXPECT_EQ(choose(QByteArray(), temporary).problem, own + " is open to other users");

  const QString other = makeFolder("other", 0700);
  QFile file(ownFolderIn(other));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  EXPECT_EQ(choose(QByteArray(), other).problem, ownFolderIn(other) + " is not a folder");
}

TEST_F(RuntimeDirectoryTest, TemporaryFolderThatCannotBeUsedIsSaidSo) {
  const RuntimeDirectory chosen = choose(QByteArray(), path("no/such/folder"));
  EXPECT_TRUE(chosen.path.isEmpty());
  EXPECT_TRUE(chosen.problem.startsWith("cannot create " + path("no/such/folder")))
      << chosen.problem.toStdString();
}

TEST(RuntimeTemporaryFolder, IsTmpdirWhenItIsAnAbsolutePathElseTmp) {
  EXPECT_EQ(temporaryFolder("/var/tmp/private"), "/var/tmp/private");
  EXPECT_EQ(temporaryFolder(nullptr), "/tmp");
  EXPECT_EQ(temporaryFolder(""), "/tmp");
  EXPECT_EQ(temporaryFolder("relative/tmp"), "/tmp");
  EXPECT_EQ(temporaryFolder("/var/\xff"), "/tmp");
}

}  // namespace
}  // namespace brimly
