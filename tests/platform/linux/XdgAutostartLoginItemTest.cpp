#include "platform/linux/XdgAutostartLoginItem.h"

#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <string>

#include "AnotherUser.h"
#include "EnvironmentOverride.h"
#include "TemporaryTree.h"

namespace brimly {
namespace {

using testing::EnvironmentOverride;
using testing::TemporaryTree;
using namespace std::string_literals;

const char* const kEntryName = "autostart/app.brimly.Brimly.desktop";

class XdgAutostartLoginItemTest : public ::testing::Test {
 protected:
  QString configHome() const { return QString::fromStdString(tree_.root()) + "/config"; }
  QString entryPath() const { return configHome() + "/" + kEntryName; }
  XdgAutostartLoginItem item(const QString& program = "/usr/bin/brimly") const {
    return XdgAutostartLoginItem(bytes(configHome()), bytes(program));
  }
  static std::string bytes(const QString& path) { return QFile::encodeName(path).toStdString(); }
  void writeEntry(const std::string& text) const {
    tree_.write(std::string("config/") + kEntryName, text);
  }
  QByteArray entryText() const {
    QFile file(entryPath());
    if (!file.open(QIODevice::ReadOnly)) return {};
    return file.readAll();
  }
  static int modeOf(const QString& path) {
    struct stat info {};
    if (::stat(QFile::encodeName(path).constData(), &info) != 0) return -1;
    return static_cast<int>(info.st_mode & 07777);
  }
  // Whether this process is kept out of a folder without write permission; the superuser is not.
  static bool permissionsHold(const QString& folder) {
    QFile probe(folder + "/probe");
    if (!probe.open(QIODevice::WriteOnly)) return true;
    probe.remove();
    return false;
  }

  TemporaryTree tree_;
};

TEST_F(XdgAutostartLoginItemTest, MissingEntryIsOff) {
  EXPECT_FALSE(item().isEnabled());
  EXPECT_EQ(item().entryPath(), bytes(entryPath()));
}

TEST_F(XdgAutostartLoginItemTest, EmptyOrGarbageEntryIsOff) {
  writeEntry("");
  EXPECT_FALSE(item().isEnabled());
  writeEntry("\0\xff\xfe garbage \n["s);
  EXPECT_FALSE(item().isEnabled());
}

TEST_F(XdgAutostartLoginItemTest, DirectoryInPlaceOfTheEntryIsOffAndCannotBeReplaced) {
  tree_.makeDirectory(std::string("config/") + kEntryName);
  XdgAutostartLoginItem login = item();
  EXPECT_FALSE(login.isEnabled());

  const std::optional<std::string> enabling = login.setEnabled(true);
  ASSERT_TRUE(enabling.has_value());
  EXPECT_EQ(*enabling, bytes(entryPath()) + " is not a regular file");

  const std::optional<std::string> disabling = login.setEnabled(false);
  ASSERT_TRUE(disabling.has_value());
  EXPECT_NE(disabling->find("cannot remove " + entryPath().toStdString() + ": "), std::string::npos)
      << *disabling;
  EXPECT_TRUE(QFileInfo(entryPath()).isDir());
}

TEST_F(XdgAutostartLoginItemTest, FifoInPlaceOfTheEntryIsOffWithoutWaiting) {
  tree_.makeFifo(std::string("config/") + kEntryName);
  EXPECT_FALSE(item().isEnabled());
}

TEST_F(XdgAutostartLoginItemTest, SymlinkToAnEntryCountsAndADanglingOneDoesNot) {
  tree_.write("dotfiles/brimly.desktop", "[Desktop Entry]\nExec=/usr/bin/brimly\n");
  tree_.makeSymlink(std::string("config/") + kEntryName, tree_.root() + "/dotfiles/brimly.desktop");
  EXPECT_TRUE(item().isEnabled());

  ASSERT_TRUE(QFile::remove(QString::fromStdString(tree_.root()) + "/dotfiles/brimly.desktop"));
  EXPECT_FALSE(item().isEnabled());
}

TEST_F(XdgAutostartLoginItemTest, UnreadableEntryIsOff) {
  writeEntry("[Desktop Entry]\nExec=/usr/bin/brimly\n");
  ASSERT_TRUE(QFile::setPermissions(entryPath(), QFileDevice::WriteOwner));
  QFile probe(entryPath());
  if (probe.open(QIODevice::ReadOnly)) {
    GTEST_SKIP() << "this user can read files without read permission (superuser)";
  }
  EXPECT_FALSE(item().isEnabled());
}

TEST_F(XdgAutostartLoginItemTest, OnlyTheHeadOfAHugeEntryIsRead) {
  std::string text = "[Desktop Entry]\nExec=/usr/bin/brimly\n";
  while (text.size() < 4 * 1024 * 1024)
    text += "# " + std::string(77, '-') + "\n";
  writeEntry(text + "Hidden=true\n");
  EXPECT_TRUE(item().isEnabled());

  writeEntry("[Desktop Entry]\nHidden=true\n" + text);
  EXPECT_FALSE(item().isEnabled());
}

TEST_F(XdgAutostartLoginItemTest, HiddenEntryIsOff) {
  writeEntry("[Desktop Entry]\nType=Application\nExec=/usr/bin/brimly\nHidden=true\n");
  EXPECT_FALSE(item().isEnabled());
}

TEST_F(XdgAutostartLoginItemTest, EntrySwitchedOffForGnomeIsOff) {
  writeEntry(
      "[Desktop Entry]\nType=Application\nExec=/usr/bin/brimly\n"
      "X-GNOME-Autostart-enabled=false\n");
  EXPECT_FALSE(item().isEnabled());
}

TEST_F(XdgAutostartLoginItemTest, FileInPlaceOfTheAutostartFolderIsReported) {
  tree_.write("config/autostart", "not a folder\n");
  const std::optional<std::string> failure = item().setEnabled(true);
  ASSERT_TRUE(failure.has_value());
  EXPECT_EQ(*failure,
            "cannot create " + configHome().toStdString() + "/autostart: Not a directory");
  EXPECT_FALSE(item().isEnabled());
  EXPECT_EQ(item().setEnabled(false), std::nullopt);  // there can be no entry below a file
}

TEST_F(XdgAutostartLoginItemTest, UnwritableAutostartFolderIsReported) {
  tree_.makeDirectory("config/autostart");
  const QString folder = configHome() + "/autostart";
  ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0500), 0);
  if (!permissionsHold(folder)) GTEST_SKIP() << "this user writes anywhere (superuser)";

  const std::optional<std::string> failure = item().setEnabled(true);
  ASSERT_TRUE(failure.has_value());
  EXPECT_EQ(failure->rfind("cannot write " + entryPath().toStdString() + ": ", 0), 0u) << *failure;
  EXPECT_FALSE(QFileInfo::exists(entryPath()));
  EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
            QStringList());
}

TEST_F(XdgAutostartLoginItemTest, EntryInAnUnwritableFolderCannotBeRemoved) {
  writeEntry("[Desktop Entry]\nExec=/usr/bin/brimly\n");
  const QString folder = configHome() + "/autostart";
  ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0500), 0);
  if (!permissionsHold(folder)) GTEST_SKIP() << "this user writes anywhere (superuser)";

  EXPECT_EQ(item().setEnabled(false),
            "cannot remove " + entryPath().toStdString() + ": Permission denied");
  EXPECT_TRUE(item().isEnabled());
}

TEST_F(XdgAutostartLoginItemTest, UncreatableConfigFolderIsReported) {
  tree_.makeDirectory("locked");
  const QString locked = QString::fromStdString(tree_.root()) + "/locked";
  ASSERT_EQ(::chmod(QFile::encodeName(locked).constData(), 0500), 0);
  if (!permissionsHold(locked)) GTEST_SKIP() << "this user writes anywhere (superuser)";

  XdgAutostartLoginItem login(bytes(locked + "/config"), "/usr/bin/brimly");
  EXPECT_EQ(login.setEnabled(true),
            "cannot create " + locked.toStdString() + "/config: " + "Permission denied");
}

TEST_F(XdgAutostartLoginItemTest, EnablingWritesAnEntryThatStartsTheProgram) {
  XdgAutostartLoginItem login = item("/usr/bin/brimly");
  EXPECT_EQ(login.setEnabled(true), std::nullopt);
  EXPECT_TRUE(login.isEnabled());
  EXPECT_EQ(entryText(),
            "[Desktop Entry]\n"
            "Type=Application\n"
            "Name=Brimly\n"
            "Comment=Glance-able system stats\n"
            "Exec=/usr/bin/brimly\n"
            "Icon=app.brimly.Brimly\n"
            "Terminal=false\n"
            "X-GNOME-Autostart-enabled=true\n");
}

TEST_F(XdgAutostartLoginItemTest, EnablingCreatesTheMissingFoldersForTheOwnerOnly) {
  ASSERT_FALSE(QFileInfo::exists(configHome()));
  EXPECT_EQ(item().setEnabled(true), std::nullopt);
  // The process's umask may take bits away, never add them.
  EXPECT_EQ(modeOf(configHome()) & ~0700, 0);
  EXPECT_EQ(modeOf(configHome() + "/autostart") & ~0700, 0);
  EXPECT_NE(modeOf(configHome() + "/autostart") & 0700, 0);
}

TEST_F(XdgAutostartLoginItemTest, ExistingFoldersKeepTheirMode) {
  tree_.makeDirectory("config/autostart");
  ASSERT_EQ(::chmod(QFile::encodeName(configHome() + "/autostart").constData(), 0755), 0);
  EXPECT_EQ(item().setEnabled(true), std::nullopt);
  EXPECT_EQ(modeOf(configHome() + "/autostart"), 0755);
}

TEST_F(XdgAutostartLoginItemTest, ProgramPathWithSpacesAndQuotesIsQuoted) {
  EXPECT_EQ(item(R"(/opt/My "Best" Apps/brimly)").setEnabled(true), std::nullopt);
  EXPECT_TRUE(entryText().contains("\nExec=\"/opt/My \\\\\"Best\\\\\" Apps/brimly\"\n"))
      << entryText().toStdString();
}

TEST_F(XdgAutostartLoginItemTest, ProgramPathThatCannotBeWrittenIsReportedByName) {
  for (const std::string& program : {std::string(), std::string("brimly"),
                                     std::string("/opt/a\x01"
                                                 "b/brimly")}) {
    const std::optional<std::string> failure =
        XdgAutostartLoginItem(bytes(configHome()), program).setEnabled(true);
    ASSERT_TRUE(failure.has_value()) << program;
    EXPECT_EQ(*failure, "cannot write " + bytes(entryPath()) + ": the program path \"" + program +
                            "\" cannot be started from a desktop entry");
    EXPECT_FALSE(QFileInfo::exists(entryPath()));
  }
}

TEST_F(XdgAutostartLoginItemTest, NonUtf8ProgramPathIsNamedByItsBytes) {
  // A desktop entry is UTF-8 text: no launcher could read such a path back.
  const std::optional<std::string> failure =
      XdgAutostartLoginItem(bytes(configHome()), "/opt/caf\xe9/brimly").setEnabled(true);
  EXPECT_EQ(failure, "cannot write " + bytes(entryPath()) +
                         R"(: the program path "/opt/caf\xe9/brimly" cannot be started from a )"
                         "desktop entry");
}

TEST_F(XdgAutostartLoginItemTest, LinkAtTheEntryPathIsNeverWrittenThrough) {
  tree_.write("home/.bashrc", "export PATH\n");
  tree_.makeSymlink(std::string("config/") + kEntryName, tree_.root() + "/home/.bashrc");
  XdgAutostartLoginItem login = item();
  EXPECT_EQ(login.setEnabled(true), bytes(entryPath()) + " is a symbolic link");
  EXPECT_FALSE(login.isEnabled());
  QFile target(QString::fromStdString(tree_.root()) + "/home/.bashrc");
  ASSERT_TRUE(target.open(QIODevice::ReadOnly));
  EXPECT_EQ(target.readAll(), "export PATH\n");

  // Switching off removes the link itself, never what it leads to.
  EXPECT_EQ(login.setEnabled(false), std::nullopt);
  EXPECT_FALSE(QFileInfo(entryPath()).isSymLink());
  EXPECT_TRUE(target.exists());
}

TEST_F(XdgAutostartLoginItemTest, DanglingLinkAtTheEntryPathMakesNoFileOutsideTheFolder) {
  tree_.makeDirectory("outside");
  const QString outside = QString::fromStdString(tree_.root()) + "/outside/made.desktop";
  tree_.makeSymlink(std::string("config/") + kEntryName, bytes(outside));
  EXPECT_EQ(item().setEnabled(true), bytes(entryPath()) + " is a symbolic link");
  EXPECT_FALSE(QFileInfo::exists(outside));
  EXPECT_FALSE(item().isEnabled());
}

TEST_F(XdgAutostartLoginItemTest, EntryOfAnotherUserIsNotReplaced) {
  if (!testing::canActAsAnotherUser()) GTEST_SKIP() << testing::kNeedsTheSuperuser;
  writeEntry("[Desktop Entry]\nExec=/home/other/run-this\n");
  ASSERT_EQ(::chown(QFile::encodeName(entryPath()).constData(), testing::kAnotherUser,
                    testing::kAnotherUser),
            0);
  EXPECT_EQ(item().setEnabled(true), bytes(entryPath()) + " belongs to another user");
  EXPECT_TRUE(entryText().contains("/home/other/run-this"));
}

TEST_F(XdgAutostartLoginItemTest, EnablingTwiceKeepsOneEntry) {
  XdgAutostartLoginItem login = item();
  EXPECT_EQ(login.setEnabled(true), std::nullopt);
  const QByteArray first = entryText();
  EXPECT_EQ(login.setEnabled(true), std::nullopt);
  EXPECT_TRUE(login.isEnabled());
  EXPECT_EQ(entryText(), first);
  EXPECT_EQ(QDir(configHome() + "/autostart")
                .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
            QStringList{"app.brimly.Brimly.desktop"});
}

TEST_F(XdgAutostartLoginItemTest, EnablingReplacesAnEntryHiddenElsewhere) {
  writeEntry("[Desktop Entry]\nType=Application\nExec=/old/brimly\nHidden=true\n");
  ASSERT_FALSE(item().isEnabled());
  EXPECT_EQ(item("/new/brimly").setEnabled(true), std::nullopt);
  EXPECT_TRUE(item().isEnabled());
  EXPECT_FALSE(entryText().contains("Hidden"));
  EXPECT_TRUE(entryText().contains("\nExec=/new/brimly\n"));
}

TEST_F(XdgAutostartLoginItemTest, DisablingRemovesTheEntry) {
  XdgAutostartLoginItem login = item();
  ASSERT_EQ(login.setEnabled(true), std::nullopt);
  EXPECT_EQ(login.setEnabled(false), std::nullopt);
  EXPECT_FALSE(login.isEnabled());
  EXPECT_FALSE(QFileInfo::exists(entryPath()));
  EXPECT_TRUE(QFileInfo(configHome() + "/autostart").isDir());
}

TEST_F(XdgAutostartLoginItemTest, DisablingWhatIsNotThereSucceeds) {
  EXPECT_EQ(item().setEnabled(false), std::nullopt);  // not even the folders exist
  tree_.makeDirectory("config/autostart");
  EXPECT_EQ(item().setEnabled(false), std::nullopt);
  EXPECT_FALSE(item().isEnabled());
}

TEST_F(XdgAutostartLoginItemTest, ChangesMadeElsewhereShowAtOnce) {
  XdgAutostartLoginItem login = item();
  ASSERT_EQ(login.setEnabled(true), std::nullopt);
  writeEntry(entryText().toStdString() + "Hidden=true\n");
  EXPECT_FALSE(login.isEnabled());
  ASSERT_TRUE(QFile::remove(entryPath()));
  EXPECT_FALSE(login.isEnabled());
}

TEST(XdgAutostartLoginItemEdge, WithoutAConfigFolderNothingCanBeEnabled) {
  for (const std::string& configHome : {std::string(), std::string("relative/config")}) {
    XdgAutostartLoginItem login(configHome, "/usr/bin/brimly");
    EXPECT_EQ(login.entryPath(), std::string());
    EXPECT_FALSE(login.isEnabled());
    const std::optional<std::string> failure = login.setEnabled(true);
    ASSERT_TRUE(failure.has_value());
    EXPECT_NE(failure->find("configuration folder"), std::string::npos) << *failure;
    EXPECT_EQ(login.setEnabled(false), std::nullopt);
  }
  EXPECT_FALSE(QFileInfo::exists("relative"));
}

TEST(XdgAutostartLoginItemEdge, ConfigFolderPathIsTidied) {
  EXPECT_EQ(XdgAutostartLoginItem("/", "/usr/bin/brimly").entryPath(),
            "/autostart/app.brimly.Brimly.desktop");
  EXPECT_EQ(XdgAutostartLoginItem("/home//ann/.config/", "/usr/bin/brimly").entryPath(),
            "/home/ann/.config/autostart/app.brimly.Brimly.desktop");
}

TEST(XdgAutostartForThisUser, EntryGoesBelowXdgConfigHome) {
  const EnvironmentOverride config("XDG_CONFIG_HOME", "/srv/conf");
  const EnvironmentOverride home("HOME", "/home/ann");
  EXPECT_EQ(XdgAutostartLoginItem::forThisUser("/usr/bin/brimly")->entryPath(),
            "/srv/conf/autostart/app.brimly.Brimly.desktop");
}

TEST(XdgAutostartForThisUser, EntryGoesBelowHomeWithoutXdgConfigHome) {
  const EnvironmentOverride config("XDG_CONFIG_HOME", QByteArray());
  const EnvironmentOverride home("HOME", "/home/ann");
  EXPECT_EQ(XdgAutostartLoginItem::forThisUser("/usr/bin/brimly")->entryPath(),
            "/home/ann/.config/autostart/app.brimly.Brimly.desktop");
}

TEST(XdgAutostartForThisUser, RelativeXdgConfigHomeIsIgnoredAndANonUtf8OneIsUsedAsItIs) {
  // The same folder the settings store takes (QSettingsStoreTest checks it there).
  {
    const EnvironmentOverride config("XDG_CONFIG_HOME", "relative/config");
    const EnvironmentOverride home("HOME", "/home/ann");
    EXPECT_EQ(XdgAutostartLoginItem::forThisUser("/usr/bin/brimly")->entryPath(),
              "/home/ann/.config/autostart/app.brimly.Brimly.desktop");
  }
  TemporaryTree tree;
  const std::string strange = tree.root() + "/conf-\xff";
  const EnvironmentOverride config("XDG_CONFIG_HOME", QByteArray::fromStdString(strange));
  const auto login = XdgAutostartLoginItem::forThisUser("/usr/bin/brimly");
  EXPECT_EQ(login->setEnabled(true), std::nullopt);
  EXPECT_EQ(::access((strange + "/autostart/app.brimly.Brimly.desktop").c_str(), R_OK), 0);
  EXPECT_TRUE(login->isEnabled());
}

TEST(XdgAutostartForThisUser, StartsTheGivenProgram) {
  TemporaryTree tree;
  const EnvironmentOverride config("XDG_CONFIG_HOME", QByteArray::fromStdString(tree.root()));
  const auto login = XdgAutostartLoginItem::forThisUser("/opt/brimly/bin/brimly");
  ASSERT_EQ(login->setEnabled(true), std::nullopt);
  QFile file(QString::fromStdString(login->entryPath()));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().contains("\nExec=/opt/brimly/bin/brimly\n"));
}

}  // namespace
}  // namespace brimly
