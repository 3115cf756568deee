#include "settings/QSettingsStore.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>

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
  store.writeBool("useFahrenheit", true);
  EXPECT_TRUE(contents(filePath).contains("useFahrenheit=true"));
  store.writeStringList("metricOrder", {"temp", "cpu", "ram"});
  store.writeStringList("one", {"pwr"});
  store.writeStringList("odd", {"a, b", "@x", "\u00fc"});
  store.writeBool("isPinned", false);

  QSettingsStore reread(freshCopy(filePath, "copy.conf"));
  EXPECT_EQ(reread.readBool("useFahrenheit"), true);
  EXPECT_EQ(reread.readBool("isPinned"), false);
  EXPECT_EQ(reread.readStringList("metricOrder"), (Strings{"temp", "cpu", "ram"}));
  EXPECT_EQ(reread.readStringList("one"), (Strings{"pwr"}));
  EXPECT_EQ(reread.readStringList("odd"), (Strings{"a, b", "@x", "\u00fc"}));
}

TEST_F(QSettingsStoreTest, AnEmptyListReadsBackAsNothingWhichGivesTheDefaultOrder) {
  const QString filePath = path("Brimly.conf");
  QSettingsStore(filePath).writeStringList("metricOrder", {});
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
    settings.defaults().writeBool(AppSettings::isPinnedKey, true);
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

TEST_F(QSettingsStoreTest, StoreThatFailedToReadNeverWritesTheFileBack) {
  const QByteArray malformed = "[General\nuseFahrenheit=true\nmetricOrder=pwr\n";
  const QString filePath = writeFile("Brimly.conf", malformed);
  {
    QSettingsStore store(filePath);
    ASSERT_TRUE(store.readFailed());
    AppSettings settings(store);
    settings.setUseFahrenheit(false);
    settings.setMetricOrder({MetricKind::cpu});
    EXPECT_EQ(settings.metricOrder(), (std::vector<MetricKind>{MetricKind::cpu}));
  }
  EXPECT_EQ(contents(filePath), malformed);
}

TEST_F(QSettingsStoreTest, PathThatCannotBeReadIsReportedAndWritesDoNotCrash) {
  // A folder where the file should be can be neither read nor written, even by the superuser.
  const QString filePath = path("Brimly.conf");
  ASSERT_TRUE(QDir().mkpath(filePath));
  QSettingsStore store(filePath);
  EXPECT_TRUE(store.readFailed());
  AppSettings settings(store);
  EXPECT_EQ(settings.metricOrder(), MetricKind::defaultOrder());
  settings.setUseFahrenheit(true);
  settings.setMetric(MetricKind::cpu, false);
  EXPECT_TRUE(settings.useFahrenheit());
  EXPECT_TRUE(QFileInfo(filePath).isDir());
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

}  // namespace
}  // namespace brimly
