#include "platform/UserFiles.h"

#include <dirent.h>
#include <fcntl.h>
#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "AnotherUser.h"
#include "FullFileSystem.h"

namespace brimly {
namespace {

using Outcome = UserFileRead::Outcome;

// A folder of the test's own, in $TMPDIR, removed afterwards.
class UserFilesTest : public ::testing::Test {
 protected:
  UserFilesTest() {
    const char* tmp = std::getenv("TMPDIR");
    root_ = std::string(tmp != nullptr && tmp[0] == '/' ? tmp : "/tmp") + "/brimly-files-XXXXXX";
    if (::mkdtemp(root_.data()) == nullptr) root_.clear();
  }
  ~UserFilesTest() override {
    if (root_.empty()) return;
    const auto remove = [](const char* entry, const struct stat*, int, FTW*) {
      return ::remove(entry);
    };
    ::nftw(root_.c_str(), remove, 16, FTW_DEPTH | FTW_PHYS);
  }

  std::string path(const std::string& name) const { return root_ + "/" + name; }
  std::string write(const std::string& name, const std::string& contents, mode_t mode = 0600) {
    const std::string file = path(name);
    const int fd = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, mode);
    EXPECT_GE(fd, 0);
    EXPECT_EQ(::write(fd, contents.data(), contents.size()), static_cast<ssize_t>(contents.size()));
    ::close(fd);
    ::chmod(file.c_str(), mode);
    return file;
  }
  static std::string contents(const std::string& file) {
    const UserFileRead read = readUserFile(file, 1 << 20);
    return read.outcome == Outcome::read ? read.contents : "<" + read.problem + ">";
  }
  static int modeOf(const std::string& file) {
    struct stat status {};
    if (::lstat(file.c_str(), &status) != 0) return -1;
    return static_cast<int>(status.st_mode & 07777);
  }
  // The names in `folder`, dot files included.
  static std::vector<std::string> namesIn(const std::string& folder) {
    std::vector<std::string> names;
    DIR* dir = ::opendir(folder.c_str());
    if (dir == nullptr) return names;
    while (const dirent* entry = ::readdir(dir)) {
      const std::string name = entry->d_name;
      if (name != "." && name != "..") names.push_back(name);
    }
    ::closedir(dir);
    return names;
  }

  std::string root_;
};

// Ends the test program (a failure) instead of letting a read wait on a FIFO for ever.
class FifoWatchdog {
 public:
  FifoWatchdog() { ::alarm(20); }
  ~FifoWatchdog() { ::alarm(0); }
};

TEST_F(UserFilesTest, NothingAtThePathOrAFileWhereAFolderShouldBeIsMissing) {
  EXPECT_EQ(readUserFile(path("none"), 100).outcome, Outcome::missing);
  write("file", "x");
  EXPECT_EQ(readUserFile(path("file/below"), 100).outcome, Outcome::missing);
}

TEST_F(UserFilesTest, FifoIsRefusedWithoutWaiting) {
  ASSERT_EQ(::mkfifo(path("fifo").c_str(), 0600), 0);
  ASSERT_EQ(::symlink(path("fifo").c_str(), path("link").c_str()), 0);
  const FifoWatchdog watchdog;
  EXPECT_EQ(readUserFile(path("fifo"), 100).problem, path("fifo") + " is not a regular file");
  EXPECT_EQ(readUserFile(path("link"), 100).problem, path("link") + " is not a regular file");
}

TEST_F(UserFilesTest, FolderIsRefused) {
  ASSERT_EQ(::mkdir(path("folder").c_str(), 0700), 0);
  const UserFileRead read = readUserFile(path("folder"), 100);
  EXPECT_EQ(read.outcome, Outcome::refused);
  EXPECT_EQ(read.problem, path("folder") + " is not a regular file");
}

TEST_F(UserFilesTest, FileOverTheLimitIsRefusedAndOneAtItIsRead) {
  write("big", std::string(2049, 'x'));
  EXPECT_EQ(readUserFile(path("big"), 2048).problem, path("big") + " is larger than 2 KiB");
  const UserFileRead read = readUserFile(path("big"), 2049);
  EXPECT_EQ(read.outcome, Outcome::read);
  EXPECT_EQ(read.contents.size(), 2049u);
}

TEST_F(UserFilesTest, FileOfAnotherUserIsRefused) {
  if (!testing::canActAsAnotherUser()) GTEST_SKIP() << testing::kNeedsTheSuperuser;
  write("theirs", "x");
  ASSERT_EQ(::chown(path("theirs").c_str(), testing::kAnotherUser, testing::kAnotherUser), 0);
  EXPECT_EQ(readUserFile(path("theirs"), 100).problem, path("theirs") + " belongs to another user");
  EXPECT_EQ(replaceUserFile(path("theirs"), "mine"), path("theirs") + " belongs to another user");
  EXPECT_EQ(contents(path("theirs")), "<" + path("theirs") + " belongs to another user>");
}

TEST_F(UserFilesTest, FileOfOursIsReadWholeAlsoThroughALink) {
  write("file", "text\n");
  ASSERT_EQ(::symlink(path("file").c_str(), path("link").c_str()), 0);
  EXPECT_EQ(contents(path("file")), "text\n");
  EXPECT_EQ(contents(path("link")), "text\n");
}

TEST_F(UserFilesTest, LinkAtThePathIsNeverWrittenThrough) {
  write("bashrc", "export PATH\n");
  ASSERT_EQ(::symlink(path("bashrc").c_str(), path("link").c_str()), 0);
  ASSERT_EQ(::symlink(path("nowhere").c_str(), path("dangling").c_str()), 0);
  EXPECT_EQ(replaceUserFile(path("link"), "replaced"), path("link") + " is a symbolic link");
  EXPECT_EQ(replaceUserFile(path("dangling"), "made"), path("dangling") + " is a symbolic link");
  EXPECT_EQ(contents(path("bashrc")), "export PATH\n");
  EXPECT_EQ(modeOf(path("nowhere")), -1);
  EXPECT_EQ(namesIn(root_).size(), 3u);
}

TEST_F(UserFilesTest, AnythingButARegularFileIsNotReplaced) {
  ASSERT_EQ(::mkdir(path("folder").c_str(), 0700), 0);
  ASSERT_EQ(::mkfifo(path("fifo").c_str(), 0600), 0);
  const FifoWatchdog watchdog;
  EXPECT_EQ(replaceUserFile(path("folder"), "x"), path("folder") + " is not a regular file");
  EXPECT_EQ(replaceUserFile(path("fifo"), "x"), path("fifo") + " is not a regular file");
  EXPECT_EQ(namesIn(root_).size(), 2u);
}

TEST_F(UserFilesTest, NewFileIsForItsOwnerAloneAndAReplacedOneKeepsItsMode) {
  EXPECT_EQ(replaceUserFile(path("new"), "one"), std::nullopt);
  EXPECT_EQ(contents(path("new")), "one");
  EXPECT_EQ(modeOf(path("new")), 0600);
  write("shared", "old", 0644);
  EXPECT_EQ(replaceUserFile(path("shared"), "new"), std::nullopt);
  EXPECT_EQ(contents(path("shared")), "new");
  EXPECT_EQ(modeOf(path("shared")), 0644);
  // No scratch file is left behind.
  EXPECT_EQ(namesIn(root_).size(), 2u);
}

TEST_F(UserFilesTest, WriteToAFullFileSystemFailsAndKeepsTheOldFile) {
  const std::string report = testing::runWithAFullFileSystem([](const std::string& folder) {
    const std::string file = folder + "/settings";
    if (replaceUserFile(file, "old") != std::nullopt) return std::string("no first write");
    testing::fillUp(folder);
    const std::optional<std::string> failure = replaceUserFile(file, std::string(8192, 'n'));
    return failure.value_or("written") + "; " + contents(file) + "; " +
           std::to_string(namesIn(folder).size());
  });
  if (report == testing::kNoFileSystemOfOurOwn) GTEST_SKIP() << report;
  EXPECT_NE(report.find(": No space left on device; old; 2"), std::string::npos) << report;
  EXPECT_EQ(report.rfind("cannot write /", 0), 0u) << report;
}

TEST_F(UserFilesTest, FoldersAreMadeForTheirOwnerAlone) {
  EXPECT_EQ(makeUserFolders(path("a/b/c")), std::nullopt);
  EXPECT_EQ(modeOf(path("a")) & ~0700, 0);
  EXPECT_EQ(modeOf(path("a/b/c")) & ~0700, 0);
  EXPECT_EQ(makeUserFolders(path("a/b/c")), std::nullopt);
  write("file", "x");
  EXPECT_EQ(makeUserFolders(path("file/below")),
            "cannot create " + path("file") + ": Not a directory");
}

TEST(UserFilesParentFolder, IsThePathUpToItsLastSlash) {
  EXPECT_EQ(parentFolder("/a/b/c"), "/a/b");
  EXPECT_EQ(parentFolder("/c"), "/");
  EXPECT_EQ(parentFolder("c"), ".");
}

}  // namespace
}  // namespace brimly
