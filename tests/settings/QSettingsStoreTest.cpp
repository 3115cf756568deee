#include "settings/QSettingsStore.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>

#include "AnotherUser.h"
#include "EnvironmentOverride.h"
#include "FullFileSystem.h"
#include "settings/AppSettings.h"

namespace brimly {
namespace {

using Strings = std::vector<std::string>;

// Every test works on files in a fresh temporary folder, never on the user's own settings.
// QSettings keeps parsed files cached by path within a process, so a test that wants to see what
// reached the disk reads the bytes or copies the file to a new path before opening it again.
class QSettingsStoreTest : public ::testing::Test {
 protected:
  QString path(const QString& name) const { return directory.filePath(name); }

  QString writeFile(const QString& name, const QByteArray& bytes) const {
    const QString filePath = path(name);
    QFile file(filePath);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return filePath;
  }

  static QByteArray contents(const QString& filePath) {
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return file.readAll();
  }

  // A copy at a path QSettings has not seen, so that opening it parses the bytes on disk.
  QString freshCopy(const QString& filePath, const QString& name) const {
    const QString copy = path(name);
    EXPECT_TRUE(QFile::copy(filePath, copy));
    return copy;
  }

  // A settings file of exactly `size` bytes that sets useFahrenheit, filled up with comments.
  QString writeFileOfSize(const QString& name, qsizetype size) const {
    QByteArray bytes = "[General]\nuseFahrenheit=true\n";
    while (size - bytes.size() >= 2) {
      const qsizetype line = std::min<qsizetype>(size - bytes.size(), 80);
      bytes.append(';').append(QByteArray(line - 2, 'x')).append('\n');
    }
    if (bytes.size() < size) bytes.append('\n');
    EXPECT_EQ(bytes.size(), size);
    return writeFile(name, bytes);
  }

  QString makeFifo(const QString& name) const {
    const QString filePath = path(name);
    EXPECT_EQ(::mkfifo(QFile::encodeName(filePath).constData(), 0600), 0);
    return filePath;
  }

  // The path as the store names it in its messages.
  static std::string bytes(const QString& filePath) {
    return QFile::encodeName(filePath).toStdString();
  }

  static int modeOf(const QString& filePath) {
    struct stat status {};
    if (::stat(QFile::encodeName(filePath).constData(), &status) != 0) return -1;
    return static_cast<int>(status.st_mode & 07777);
  }

  static bool isFifo(const QString& filePath) {
    struct stat status {};
    return ::lstat(QFile::encodeName(filePath).constData(), &status) == 0 &&
           S_ISFIFO(status.st_mode);
  }

  QTemporaryDir directory;
};

// A FIFO has no end until a writer comes: opening and reading it would hold Brimly up before it
// shows anything. Should the store ever open one, the alarm ends the test program (a failure)
// instead of letting it wait forever.
class FifoWatchdog {
 public:
  FifoWatchdog() { ::alarm(20); }
  ~FifoWatchdog() { ::alarm(0); }
};

TEST_F(QSettingsStoreTest, FifoAtThePathIsNeverOpenedAndReadsAsAFailedStore) {
  const QString filePath = makeFifo("Brimly.conf");
  FifoWatchdog watchdog;
  QSettingsStore store(filePath);
  EXPECT_TRUE(store.readFailed());
  AppSettings settings(store);
  EXPECT_FALSE(settings.useFahrenheit());
  EXPECT_EQ(settings.metricOrder(), MetricKind::defaultOrder());
  settings.setUseFahrenheit(true);
  EXPECT_TRUE(isFifo(filePath));
}

TEST_F(QSettingsStoreTest, LinkToAFifoIsNeverOpenedAndStaysALink) {
  const QString fifo = makeFifo("elsewhere");
  const QString filePath = path("Brimly.conf");
  ASSERT_TRUE(QFile::link(fifo, filePath));
  FifoWatchdog watchdog;
  QSettingsStore store(filePath);
  EXPECT_TRUE(store.readFailed());
  AppSettings settings(store);
  EXPECT_FALSE(settings.isPinned());
  settings.setUseFahrenheit(true);
  EXPECT_EQ(QFileInfo(filePath).symLinkTarget(), fifo);
  EXPECT_TRUE(isFifo(fifo));
}

TEST_F(QSettingsStoreTest, FileOverTheSizeLimitIsNotReadAndIsLeftAsItIs) {
  const QString filePath = writeFileOfSize("Brimly.conf", 65 * 1024);
  const QByteArray stored = contents(filePath);
  {
    QSettingsStore store(filePath);
    EXPECT_TRUE(store.readFailed());
    EXPECT_EQ(store.readBool("useFahrenheit"), std::nullopt);
    AppSettings settings(store);
    EXPECT_FALSE(settings.useFahrenheit());
    settings.setMetric(MetricKind::cpu, false);
    settings.setUseFahrenheit(true);
  }
  EXPECT_EQ(contents(filePath), stored);
}

TEST_F(QSettingsStoreTest, FileOneByteOverTheSizeLimitIsNotRead) {
  QSettingsStore store(writeFileOfSize("Brimly.conf", 64 * 1024 + 1));
  EXPECT_TRUE(store.readFailed());
}

TEST_F(QSettingsStoreTest, FileOfExactlyTheSizeLimitIsRead) {
  QSettingsStore store(writeFileOfSize("Brimly.conf", 64 * 1024));
  EXPECT_FALSE(store.readFailed());
  EXPECT_EQ(store.readBool("useFahrenheit"), true);
}

TEST_F(QSettingsStoreTest, MissingFileReadsNothingAndIsNotCreatedAtStart) {
  const QString filePath = path("Brimly.conf");
  {
    QSettingsStore store(filePath);
    EXPECT_FALSE(store.readFailed());
    EXPECT_EQ(store.readBool("useFahrenheit"), std::nullopt);
    EXPECT_EQ(store.readStringList("metricOrder"), std::nullopt);
    AppSettings settings(store);
    EXPECT_FALSE(settings.useFahrenheit());
    EXPECT_EQ(settings.metricOrder(), MetricKind::defaultOrder());
  }
  EXPECT_FALSE(QFileInfo::exists(filePath));
}

TEST_F(QSettingsStoreTest, ReadsValuesAsQSettingsWritesThem) {
  const QString filePath = writeFile("Brimly.conf",
                                     "[General]\n"
                                     "useFahrenheit=true\n"
                                     "isPinned=false\n"
                                     "metricOrder=temp, cpu\n");
  QSettingsStore store(filePath);
  EXPECT_EQ(store.readBool("useFahrenheit"), true);
  EXPECT_EQ(store.readBool("isPinned"), false);
  EXPECT_EQ(store.readStringList("metricOrder"), (Strings{"temp", "cpu"}));
  AppSettings settings(store);
  EXPECT_EQ(settings.metricOrder(), (std::vector<MetricKind>{MetricKind::temp, MetricKind::cpu}));
}

TEST_F(QSettingsStoreTest, SingleStringReadsAsAListOfOne) {
  QSettingsStore store(writeFile("Brimly.conf", "[General]\nmetricOrder=pwr\n"));
  EXPECT_EQ(store.readStringList("metricOrder"), (Strings{"pwr"}));
}

TEST_F(QSettingsStoreTest, MistypedBooleansReadAsNothing) {
  QSettingsStore store(writeFile("Brimly.conf",
                                 "[General]\n"
                                 "a=1\n"
                                 "b=yes\n"
                                 "c=TRUE\n"
                                 "d=@ByteArray(true)\n"
                                 "e=@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x1)\n"
                                 "f=true, false\n"
                                 "g=\n"));
  for (const char* key : {"a", "b", "c", "d", "e", "f", "g"}) {
    EXPECT_EQ(store.readBool(key), std::nullopt) << key;
  }
}

TEST_F(QSettingsStoreTest, MistypedListsReadAsNothing) {
  QSettingsStore store(writeFile("Brimly.conf",
                                 "[General]\n"
                                 "a=@ByteArray(cpu)\n"
                                 "b=@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x5)\n"
                                 "c=@Invalid()\n"));
  for (const char* key : {"a", "b", "c"}) {
    EXPECT_EQ(store.readStringList(key), std::nullopt) << key;
  }
}

TEST_F(QSettingsStoreTest, WritesReachTheFileAtOnceAndReadBackTheSame) {
  const QString filePath = path("Brimly.conf");
  QSettingsStore store(filePath);
  EXPECT_EQ(store.writeBool("useFahrenheit", true), std::nullopt);
  EXPECT_TRUE(contents(filePath).contains("useFahrenheit=true"));
  EXPECT_EQ(store.writeStringList("metricOrder", {"temp", "cpu", "ram"}), std::nullopt);
  EXPECT_EQ(store.writeStringList("one", {"pwr"}), std::nullopt);
  EXPECT_EQ(store.writeStringList("odd", {"a, b", "@x", "\u00fc"}), std::nullopt);
  EXPECT_EQ(store.writeBool("isPinned", false), std::nullopt);

  QSettingsStore reread(freshCopy(filePath, "copy.conf"));
  EXPECT_EQ(reread.readBool("useFahrenheit"), true);
  EXPECT_EQ(reread.readBool("isPinned"), false);
  EXPECT_EQ(reread.readStringList("metricOrder"), (Strings{"temp", "cpu", "ram"}));
  EXPECT_EQ(reread.readStringList("one"), (Strings{"pwr"}));
  EXPECT_EQ(reread.readStringList("odd"), (Strings{"a, b", "@x", "\u00fc"}));
}

TEST_F(QSettingsStoreTest, StringsReadBackAsWrittenAndOnlyAPlainStringIsOne) {
  const QString filePath = path("Brimly.conf");
  QSettingsStore store(filePath);
  EXPECT_EQ(store.writeString("accentColor", "blue"), std::nullopt);
  EXPECT_EQ(store.writeString("odd", "a, b"), std::nullopt);
  EXPECT_EQ(store.writeString("empty", ""), std::nullopt);
  EXPECT_TRUE(contents(filePath).contains("accentColor=blue"));
  QSettingsStore reread(freshCopy(filePath, "copy.conf"));
  EXPECT_EQ(reread.readString("accentColor"), "blue");
  EXPECT_EQ(reread.readString("odd"), "a, b");
  EXPECT_EQ(reread.readString("empty"), "");

  QSettingsStore mistyped(writeFile("other.conf",
                                    "[General]\n"
                                    "list=large, regular\n"
                                    "bytes=@ByteArray(large)\n"
                                    "number=@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x5)\n"));
  for (const char* key : {"list", "bytes", "number", "absent"}) {
    EXPECT_EQ(mistyped.readString(key), std::nullopt) << key;
  }
}

TEST_F(QSettingsStoreTest, AnEmptyListReadsBackAsNothingWhichGivesTheDefaultOrder) {
  const QString filePath = path("Brimly.conf");
  EXPECT_EQ(QSettingsStore(filePath).writeStringList("metricOrder", {}), std::nullopt);
  QSettingsStore reread(freshCopy(filePath, "copy.conf"));
  EXPECT_EQ(AppSettings(reread).metricOrder(), MetricKind::defaultOrder());
}

TEST_F(QSettingsStoreTest, SettingsSurviveARestart) {
  const QString filePath = path("Brimly.conf");
  {
    QSettingsStore store(filePath);
    AppSettings settings(store);
    settings.setUseFahrenheit(true);
    settings.setMetricOrder({MetricKind::pwr});
    EXPECT_TRUE(settings.storePinned(true));
  }
  QSettingsStore store(freshCopy(filePath, "copy.conf"));
  AppSettings settings(store);
  EXPECT_TRUE(settings.useFahrenheit());
  EXPECT_TRUE(settings.isPinned());
  EXPECT_EQ(settings.metricOrder(), (std::vector<MetricKind>{MetricKind::pwr}));
}

TEST_F(QSettingsStoreTest, GarbageBytesNeitherCrashNorGetOverwrittenAtStart) {
  QByteArray garbage;
  for (int i = 0; i < 4096; ++i)
    garbage.append(static_cast<char>((i * 7919 + 13) % 256));
  garbage.append("\n=\n[\n]]]\n\\\\\n@Variant(\\xff\\xff)\nmetricOrder=@Variant(\\0\\0\\0\\x7f)\n");
  const QString filePath = writeFile("Brimly.conf", garbage);
  {
    QSettingsStore store(filePath);
    AppSettings settings(store);
    EXPECT_FALSE(settings.useFahrenheit());
    EXPECT_FALSE(settings.isPinned());
    EXPECT_EQ(settings.metricOrder(), MetricKind::defaultOrder());
  }
  EXPECT_EQ(contents(filePath), garbage);
}

TEST_F(QSettingsStoreTest, MalformedFileIsReportedReadsNothingAndIsNotOverwrittenAtStart) {
  const QByteArray malformed = "[General\nuseFahrenheit=true\nmetricOrder=pwr\n";
  const QString filePath = writeFile("Brimly.conf", malformed);
  {
    QSettingsStore store(filePath);
    EXPECT_TRUE(store.readFailed());
    EXPECT_EQ(store.readBool("useFahrenheit"), std::nullopt);
    AppSettings settings(store);
    EXPECT_FALSE(settings.useFahrenheit());
    EXPECT_EQ(settings.metricOrder(), MetricKind::defaultOrder());
  }
  EXPECT_EQ(contents(filePath), malformed);
}

TEST_F(QSettingsStoreTest, StoreThatFailedToReadNeverWritesTheFileBackAndSaysSo) {
  const QByteArray malformed = "[General\nuseFahrenheit=true\nmetricOrder=pwr\n";
  const QString filePath = writeFile("Brimly.conf", malformed);
  {
    QSettingsStore store(filePath);
    ASSERT_TRUE(store.readFailed());
    AppSettings settings(store);
    std::vector<std::string> logged;
    settings.setWriteFailureLog([&](const std::string& line) { logged.push_back(line); });
    settings.setUseFahrenheit(true);
    settings.setMetricOrder({MetricKind::cpu});
    // Nothing was saved: the settings show what the next start will find.
    EXPECT_FALSE(settings.useFahrenheit());
    EXPECT_EQ(settings.metricOrder(), MetricKind::defaultOrder());
    ASSERT_EQ(logged.size(), 2u);
    EXPECT_EQ(logged[0], std::string(AppSettings::writeFailurePrefix) + bytes(filePath) +
                             " cannot be parsed, and is left as it is");
  }
  EXPECT_EQ(contents(filePath), malformed);
}

TEST_F(QSettingsStoreTest, PathThatCannotBeReadIsReportedAndWritesFailWithoutACrash) {
  // A folder where the file should be can be neither read nor written, even by the superuser.
  const QString filePath = path("Brimly.conf");
  ASSERT_TRUE(QDir().mkpath(filePath));
  QSettingsStore store(filePath);
  EXPECT_TRUE(store.readFailed());
  AppSettings settings(store);
  EXPECT_EQ(settings.metricOrder(), MetricKind::defaultOrder());
  settings.setUseFahrenheit(true);
  settings.setMetric(MetricKind::cpu, false);
  EXPECT_FALSE(settings.useFahrenheit());
  EXPECT_EQ(settings.metricOrder(), MetricKind::defaultOrder());
  EXPECT_TRUE(QFileInfo(filePath).isDir());
}

TEST_F(QSettingsStoreTest, FifoPutAtThePathWhileRunningBlocksNeitherAReadNorAWrite) {
  const QString filePath = writeFile("Brimly.conf", "[General]\nuseFahrenheit=false\n");
  QSettingsStore store(filePath);
  AppSettings settings(store);
  std::vector<std::string> logged;
  settings.setWriteFailureLog([&](const std::string& line) { logged.push_back(line); });
  ASSERT_TRUE(QFile::remove(filePath));
  makeFifo("Brimly.conf");

  FifoWatchdog watchdog;
  EXPECT_EQ(store.readBool("useFahrenheit"), std::nullopt);
  EXPECT_EQ(store.writeBool("useFahrenheit", true), bytes(filePath) + " is not a regular file");
  settings.setUseFahrenheit(true);
  EXPECT_FALSE(settings.useFahrenheit());
  EXPECT_EQ(logged, std::vector<std::string>{std::string(AppSettings::writeFailurePrefix) +
                                             bytes(filePath) + " is not a regular file"});
  EXPECT_TRUE(isFifo(filePath));
}

TEST_F(QSettingsStoreTest, LinkAtThePathIsReadThroughButNeverWrittenThrough) {
  const QByteArray target = "[General]\nuseFahrenheit=true\n";
  const QString elsewhere = writeFile("bashrc", target);
  const QString filePath = path("Brimly.conf");
  ASSERT_TRUE(QFile::link(elsewhere, filePath));
  QSettingsStore store(filePath);
  EXPECT_FALSE(store.readFailed());
  AppSettings settings(store);
  EXPECT_TRUE(settings.useFahrenheit());

  EXPECT_EQ(store.writeBool("useFahrenheit", false), bytes(filePath) + " is a symbolic link");
  settings.setUseFahrenheit(false);
  EXPECT_TRUE(settings.useFahrenheit());
  EXPECT_EQ(contents(elsewhere), target);
  EXPECT_EQ(QFileInfo(filePath).symLinkTarget(), elsewhere);
}

TEST_F(QSettingsStoreTest, DanglingLinkAtThePathMakesNoFileAnywhere) {
  const QString filePath = path("Brimly.conf");
  const QString nowhere = path("outside/elsewhere.conf");
  ASSERT_TRUE(QDir().mkpath(path("outside")));
  ASSERT_TRUE(QFile::link(nowhere, filePath));
  QSettingsStore store(filePath);
  EXPECT_EQ(store.writeBool("useFahrenheit", true), bytes(filePath) + " is a symbolic link");
  EXPECT_FALSE(QFileInfo::exists(nowhere));
  EXPECT_TRUE(QFileInfo(filePath).isSymLink());
}

TEST_F(QSettingsStoreTest, FileOfAnotherUserIsNeitherReadNorWritten) {
  if (!testing::canActAsAnotherUser()) GTEST_SKIP() << testing::kNeedsTheSuperuser;
  const QByteArray planted = "[General]\nisPinned=true\n";
  const QString filePath = writeFile("Brimly.conf", planted);
  ASSERT_EQ(::chown(QFile::encodeName(filePath).constData(), testing::kAnotherUser,
                    testing::kAnotherUser),
            0);
  QSettingsStore store(filePath);
  EXPECT_TRUE(store.readFailed());
  AppSettings settings(store);
  EXPECT_FALSE(settings.isPinned());
  EXPECT_FALSE(settings.storePinned(true));
  EXPECT_EQ(contents(filePath), planted);
}

TEST_F(QSettingsStoreTest, FileThatGrewPastTheLimitWhileRunningIsNotOverwritten) {
  const QString filePath = writeFile("Brimly.conf", "[General]\nuseFahrenheit=false\n");
  QSettingsStore store(filePath);
  writeFileOfSize("Brimly.conf", 64 * 1024 + 1);
  const QByteArray grown = contents(filePath);
  EXPECT_EQ(store.readBool("useFahrenheit"), std::nullopt);
  EXPECT_EQ(store.writeBool("useFahrenheit", true), bytes(filePath) + " is larger than 64 KiB");
  EXPECT_EQ(contents(filePath), grown);
}

TEST_F(QSettingsStoreTest, WriteKeepsWhatItDoesNotSetChangesMadeMeanwhileIncluded) {
  const QString filePath = writeFile("Brimly.conf", "[General]\nuseFahrenheit=true\n");
  QSettingsStore store(filePath);
  writeFile("Brimly.conf", "[General]\nuseFahrenheit=true\nother=kept\n[Window]\nwidth=3\n");
  EXPECT_EQ(store.writeBool("isPinned", true), std::nullopt);
  QSettingsStore reread(freshCopy(filePath, "copy.conf"));
  EXPECT_EQ(reread.readBool("useFahrenheit"), true);
  EXPECT_EQ(reread.readBool("isPinned"), true);
  EXPECT_EQ(reread.readStringList("other"), (Strings{"kept"}));
  EXPECT_EQ(reread.readStringList("Window/width"), (Strings{"3"}));
}

TEST_F(QSettingsStoreTest, ReplacedFileKeepsItsModeAndANewOneIsForTheOwnerAlone) {
  const QString filePath = writeFile("Brimly.conf", "[General]\n");
  ASSERT_EQ(::chmod(QFile::encodeName(filePath).constData(), 0640), 0);
  EXPECT_EQ(QSettingsStore(filePath).writeBool("isPinned", true), std::nullopt);
  EXPECT_EQ(modeOf(filePath), 0640);
  const QString fresh = path("fresh/Brimly.conf");
  EXPECT_EQ(QSettingsStore(fresh).writeBool("isPinned", true), std::nullopt);
  EXPECT_EQ(modeOf(fresh), 0600);
  EXPECT_EQ(modeOf(path("fresh")), 0700);
  // Nothing but the file is left beside it.
  EXPECT_EQ(QDir(path("fresh")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
            QStringList{"Brimly.conf"});
}

TEST_F(QSettingsStoreTest, WithoutAConfigurationFolderEveryWriteFailsAndSaysWhy) {
  QSettingsStore store{std::string()};
  EXPECT_FALSE(store.readFailed());
  EXPECT_EQ(store.readBool("useFahrenheit"), std::nullopt);
  AppSettings settings(store);
  std::vector<std::string> logged;
  settings.setWriteFailureLog([&](const std::string& line) { logged.push_back(line); });
  settings.setUseFahrenheit(true);
  EXPECT_FALSE(settings.useFahrenheit());
  ASSERT_EQ(logged.size(), 1u);
  EXPECT_NE(logged[0].find("neither XDG_CONFIG_HOME nor HOME"), std::string::npos) << logged[0];
}

TEST_F(QSettingsStoreTest, AFullFileSystemFailsTheWriteKeepsTheFileAndSaysSo) {
  const std::string report = testing::runWithAFullFileSystem([](const std::string& folder) {
    const QString filePath = QFile::decodeName(folder.c_str()) + "/brimly/Brimly.conf";
    QSettingsStore store(filePath);
    AppSettings settings(store);
    if (!settings.storePinned(true)) return std::string("the first write failed");
    const QByteArray before = contents(filePath);
    testing::fillUp(folder);
    std::vector<std::string> logged;
    settings.setWriteFailureLog([&](const std::string& line) { logged.push_back(line); });
    settings.setUseFahrenheit(true);
    const QDir brimly(QFile::decodeName(folder.c_str()) + "/brimly");
    std::string line = logged.empty() ? std::string("nothing") : logged.front();
    if (const std::size_t at = line.find(folder); at != std::string::npos) {
      line.replace(at, folder.size(), "<folder>");
    }
    return "fahrenheit " + std::to_string(settings.useFahrenheit()) + "; file " +
           (contents(filePath) == before ? "kept" : "changed") + "; beside it " +
           std::to_string(brimly.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size()) +
           "; logged " + line;
  });
  if (report == testing::kNoFileSystemOfOurOwn) GTEST_SKIP() << report;
  EXPECT_EQ(report, std::string("fahrenheit 0; file kept; beside it 1; logged ") +
                        AppSettings::writeFailurePrefix + "cannot write " +
                        "<folder>/brimly/Brimly.conf: No space left on device");
}

TEST_F(QSettingsStoreTest, FileWithoutReadPermissionGivesDefaultsAndStaysUntouched) {
  const QByteArray stored = "[General]\nuseFahrenheit=true\n";
  const QString filePath = writeFile("Brimly.conf", stored);
  ASSERT_TRUE(QFile::setPermissions(filePath, QFileDevice::WriteOwner));
  QFile probe(filePath);
  if (probe.open(QIODevice::ReadOnly)) {
    QFile::setPermissions(filePath, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    GTEST_SKIP() << "this user can read files without read permission (superuser)";
  }
  {
    QSettingsStore store(filePath);
    AppSettings settings(store);
    EXPECT_FALSE(settings.useFahrenheit());
    EXPECT_EQ(settings.metricOrder(), MetricKind::defaultOrder());
  }
  ASSERT_TRUE(QFile::setPermissions(filePath, QFileDevice::ReadOwner | QFileDevice::WriteOwner));
  EXPECT_EQ(contents(filePath), stored);
}

TEST_F(QSettingsStoreTest, UsersStoreLivesInTheConfigurationFolder) {
#ifdef __APPLE__
  GTEST_SKIP() << "the XDG configuration folder is the Linux store's; on macOS the preferences "
                  "live in MacPreferencesStore's domain, and Qt's configuration folder there "
                  "(~/Library/Preferences) ignores XDG_CONFIG_HOME";
#endif
  // The test program runs with XDG_CONFIG_HOME pointing into the build tree.
  const QByteArray configHome = qgetenv("XDG_CONFIG_HOME");
  if (configHome.isEmpty()) GTEST_SKIP() << "run through CTest, which sets XDG_CONFIG_HOME";
  QSettingsStore store;
  const QString expected =
      QFileInfo(QDir(QString::fromLocal8Bit(configHome)).filePath("brimly/Brimly.conf"))
          .absoluteFilePath();
  EXPECT_EQ(QFileInfo(store.fileName()).absoluteFilePath().toStdString(), expected.toStdString());
  EXPECT_FALSE(QFileInfo::exists(expected));
}

TEST_F(QSettingsStoreTest, RelativeConfigurationFolderIsIgnoredAndANonUtf8OneIsUsedAsItIs) {
  using testing::EnvironmentOverride;
  const QByteArray home = QFile::encodeName(directory.path());
  const QByteArray strange = home + "/conf-\xff";
  {
    const EnvironmentOverride config("XDG_CONFIG_HOME", "relative/config");
    const EnvironmentOverride homeFolder("HOME", home);
    EXPECT_EQ(QSettingsStore().fileName(), directory.path() + "/.config/brimly/Brimly.conf");
  }
  const EnvironmentOverride config("XDG_CONFIG_HOME", strange);
  QSettingsStore store;
  EXPECT_EQ(store.writeBool("isPinned", true), std::nullopt);
  struct stat status {};
  EXPECT_EQ(::stat((strange + "/brimly/Brimly.conf").constData(), &status), 0);
  EXPECT_EQ(store.fileName(), directory.path() + "/conf-\\xff/brimly/Brimly.conf");
}

}  // namespace
}  // namespace brimly
