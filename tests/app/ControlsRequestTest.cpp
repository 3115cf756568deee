#include "app/ControlsRequest.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <functional>
#include <memory>
#include <vector>

#include "AnotherUser.h"

namespace brimly {
namespace {

using testing::canActAsAnotherUser;
using testing::kAnotherUser;
using testing::kNeedsTheSuperuser;

// Lowers this process's descriptor limit to what it uses and takes the few left over, for as long
// as it lives; then gives all of them back.
class DescriptorsUsedUp {
 public:
  DescriptorsUsedUp() {
    if (::getrlimit(RLIMIT_NOFILE, &saved_) != 0) return;
    const int highest = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    if (highest < 0) return;
    taken_.push_back(highest);
    rlimit lowered = saved_;
    lowered.rlim_cur = static_cast<rlim_t>(highest) + 4;
    if (::setrlimit(RLIMIT_NOFILE, &lowered) != 0) return;
    lowered_ = true;
    for (;;) {
      const int fd = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
      if (fd < 0) break;
      taken_.push_back(fd);
    }
  }
  ~DescriptorsUsedUp() {
    for (const int fd : taken_)
      ::close(fd);
    if (lowered_) ::setrlimit(RLIMIT_NOFILE, &saved_);
  }
  DescriptorsUsedUp(const DescriptorsUsedUp&) = delete;
  DescriptorsUsedUp& operator=(const DescriptorsUsedUp&) = delete;

  // Whether every descriptor is taken now.
  bool ok() const {
    const int spare = ::dup(0);
    if (spare >= 0) ::close(spare);
    return lowered_ && spare < 0 && errno == EMFILE;
  }

 private:
  rlimit saved_{};
  bool lowered_ = false;
  std::vector<int> taken_;
};

// Long enough never to matter on a loaded machine; the tests wait on conditions, not on time.
constexpr int kPatienceMs = 10000;
constexpr int kShortClientTimeoutMs = 100;

class ControlsRequestTest : public ::testing::Test {
 protected:
  QString socketPath() const {
    return QDir(directory_.path()).filePath("app.brimly.Brimly.controls");
  }

  // A client that says what the test wants and stays connected until the server drops it.
  std::unique_ptr<QLocalSocket> connectAndSend(const QByteArray& bytes) const {
    auto client = std::make_unique<QLocalSocket>();
    client->connectToServer(socketPath());
    EXPECT_TRUE(client->waitForConnected(kPatienceMs));
    if (!bytes.isEmpty()) {
      client->write(bytes);
      while (client->bytesToWrite() > 0 && client->waitForBytesWritten(kPatienceMs)) {
      }
    }
    return client;
  }

  static bool droppedByServer(QLocalSocket& client) {
    return QTest::qWaitFor([&] { return client.state() == QLocalSocket::UnconnectedState; },
                           kPatienceMs);
  }

  // The socket path as the system's calls take it.
  sockaddr_un socketAddress() const {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray path = QFile::encodeName(socketPath());
    EXPECT_LT(static_cast<std::size_t>(path.size()), sizeof address.sun_path);
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    return address;
  }
  // Binds `fd` to the socket path, or connects it there; true when that worked.
  bool bindToSocketPath(int fd) const {
    const sockaddr_un address = socketAddress();
    return ::bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  }
  bool connectToSocketPath(int fd) const {
    const sockaddr_un address = socketAddress();
    return ::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  }

  // A socket file as a crashed instance leaves it: bound, then closed without being removed.
  void leaveStaleSocket() const {
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_GE(fd, 0);
    ASSERT_TRUE(bindToSocketPath(fd));
    ::close(fd);
    ASSERT_TRUE(QFileInfo::exists(socketPath()));
  }

  // A socket listening at the path, as a program of someone else's would hold it; -1 on failure.
  int listenLikeAnotherProgram() const {
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    if (!bindToSocketPath(fd) || ::listen(fd, 8) != 0) {
      ::close(fd);
      return -1;
    }
    ::fcntl(fd, F_SETFL, O_NONBLOCK);
    return fd;
  }

  // Under /tmp rather than the temporary folder: a socket's path must fit sockaddr_un (104 bytes
  // on macOS), and macOS's per-user temporary folder alone takes half of that.
  QTemporaryDir directory_{QStringLiteral("/tmp/brimly-XXXXXX")};
};

TEST_F(ControlsRequestTest, NobodyListeningAnswersFalseWithoutWaiting) {
  QElapsedTimer elapsed;
  elapsed.start();
  EXPECT_FALSE(requestControlsFromRunningInstance(socketPath(), 60000));
  leaveStaleSocket();
  EXPECT_FALSE(requestControlsFromRunningInstance(socketPath(), 60000));
  // Neither call waited for its time limit.
  EXPECT_LT(elapsed.elapsed(), 30000);
}

TEST_F(ControlsRequestTest, UnusablePathsAnswerFalse) {
  EXPECT_FALSE(requestControlsFromRunningInstance(QString(), 1000));
  EXPECT_FALSE(requestControlsFromRunningInstance("/no/such/folder/brimly.controls", 1000));
  EXPECT_FALSE(requestControlsFromRunningInstance(directory_.path(), 1000));
  EXPECT_FALSE(requestControlsFromRunningInstance(socketPath(), -1));
}

TEST_F(ControlsRequestTest, ServerThatCannotListenSaysWhy) {
  ControlsRequestServer server("/no/such/folder/brimly.controls");
  EXPECT_FALSE(server.listen());
  EXPECT_FALSE(server.isListening());
  EXPECT_FALSE(server.errorString().isEmpty());

  ControlsRequestServer unnamed{QString()};
  EXPECT_FALSE(unnamed.listen());
  EXPECT_FALSE(unnamed.errorString().isEmpty());
}

TEST_F(ControlsRequestTest, SocketOfAnotherUserIsNeitherReplacedNorAsked) {
  if (!canActAsAnotherUser()) GTEST_SKIP() << kNeedsTheSuperuser;
  const int planted = listenLikeAnotherProgram();
  ASSERT_GE(planted, 0);
  ASSERT_EQ(::lchown(QFile::encodeName(socketPath()).constData(), kAnotherUser, kAnotherUser), 0);

  ControlsRequestServer server(socketPath());
  EXPECT_FALSE(server.listen());
  EXPECT_EQ(server.errorString(), socketPath() + " belongs to another user");
  EXPECT_TRUE(QFileInfo::exists(socketPath()));

  EXPECT_FALSE(requestControlsFromRunningInstance(socketPath(), kPatienceMs));
  // Nobody connected to the planted socket.
  EXPECT_LT(::accept(planted, nullptr, nullptr), 0);
  EXPECT_EQ(errno, EAGAIN);
  ::close(planted);
}

TEST_F(ControlsRequestTest, WhateverElseIsInTheWayIsLeftAlone) {
  ASSERT_TRUE(QDir(directory_.path()).mkdir("elsewhere"));
  const QString file = QDir(directory_.path()).filePath("elsewhere/file");
  QFile(file).open(QIODevice::WriteOnly);
  for (const auto& plant : std::vector<std::function<bool()>>{
           [&] { return QFile(socketPath()).open(QIODevice::WriteOnly); },
           [&] { return QDir(directory_.path()).mkdir("app.brimly.Brimly.controls"); },
           [&] { return QFile::link(file, socketPath()); }}) {
    ASSERT_TRUE(plant());
    ControlsRequestServer server(socketPath());
    EXPECT_FALSE(server.listen());
    EXPECT_EQ(server.errorString(), socketPath() + " is in the way: it is no socket");
    EXPECT_FALSE(requestControlsFromRunningInstance(socketPath(), kPatienceMs));
    EXPECT_TRUE(QFileInfo(socketPath()).isSymLink() || QFileInfo::exists(socketPath()));
    ASSERT_TRUE(QFile::remove(socketPath()) || QDir(socketPath()).removeRecursively());
  }
  EXPECT_TRUE(QFileInfo::exists(file));
}

TEST_F(ControlsRequestTest, ChannelKeepsListeningWhenTheProcessRunsOutOfDescriptors) {
  ControlsRequestServer server(socketPath());
  ASSERT_TRUE(server.listen());
  QSignalSpy requested(&server, &ControlsRequestServer::controlsRequested);
  const int client = ::socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_GE(client, 0);
  {
    // Every descriptor this process may have is taken; then a later launch connects.
    DescriptorsUsedUp exhausted;
    ASSERT_TRUE(exhausted.ok());
    ASSERT_TRUE(connectToSocketPath(client));
    const qsizetype length = qstrlen(ControlsRequestServer::kRequestLine);
    ASSERT_EQ(::write(client, ControlsRequestServer::kRequestLine, length), length);
    // The server is told of the connection and cannot accept it.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_TRUE(server.isListening());
    EXPECT_TRUE(QFileInfo::exists(socketPath()));
    EXPECT_EQ(requested.count(), 0);
  }
  // With descriptors free again, the waiting request is taken, and later ones as well.
  EXPECT_TRUE(QTest::qWaitFor([&] { return requested.count() == 1; }, kPatienceMs));
  ::close(client);
  EXPECT_TRUE(requestControlsFromRunningInstance(socketPath(), kPatienceMs));
  EXPECT_TRUE(QTest::qWaitFor([&] { return requested.count() == 2; }, kPatienceMs));
}

TEST_F(ControlsRequestTest, ABurstOfSilentConnectionsIsReadAFewAtATime) {
  ControlsRequestServer server(socketPath(), kShortClientTimeoutMs);
  ASSERT_TRUE(server.listen());
  QSignalSpy requested(&server, &ControlsRequestServer::controlsRequested);
  std::vector<std::unique_ptr<QLocalSocket>> burst;
  int mostOpen = 0;
  for (int i = 0; i < 6 * ControlsRequestServer::kMaxClients; ++i) {
    burst.push_back(std::make_unique<QLocalSocket>());
    burst.back()->connectToServer(socketPath());
    QCoreApplication::processEvents();
    mostOpen = std::max(mostOpen, server.openClients());
  }
  // A later launch behind the burst still gets through once the silent ones have been dropped.
  QProcess launch;
  launch.start(BRIMLY_CONTROLS_REQUEST_CLIENT, {socketPath()});
  ASSERT_TRUE(launch.waitForStarted(kPatienceMs));
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        mostOpen = std::max(mostOpen, server.openClients());
        return launch.state() == QProcess::NotRunning && requested.count() == 1;
      },
      kPatienceMs));
  EXPECT_EQ(launch.exitCode(), 0);
  EXPECT_EQ(mostOpen, ControlsRequestServer::kMaxClients);
  EXPECT_TRUE(server.isListening());
}

TEST_F(ControlsRequestTest, ServerRemovesItsOwnSocketOnlyNeverOneThatReplacedIt) {
  auto first = std::make_unique<ControlsRequestServer>(socketPath());
  ASSERT_TRUE(first->listen());
  ASSERT_TRUE(QFile::remove(socketPath()));
  ControlsRequestServer second(socketPath());
  ASSERT_TRUE(second.listen());
  first.reset();
  EXPECT_TRUE(QFileInfo::exists(socketPath()));
  QSignalSpy requested(&second, &ControlsRequestServer::controlsRequested);
  EXPECT_TRUE(requestControlsFromRunningInstance(socketPath(), kPatienceMs));
  EXPECT_TRUE(QTest::qWaitFor([&] { return requested.count() == 1; }, kPatienceMs));
}

TEST_F(ControlsRequestTest, StaleSocketIsReplaced) {
  leaveStaleSocket();
  ControlsRequestServer server(socketPath());
  ASSERT_TRUE(server.listen()) << server.errorString().toStdString();
  QSignalSpy requested(&server, &ControlsRequestServer::controlsRequested);
  EXPECT_TRUE(requestControlsFromRunningInstance(socketPath(), kPatienceMs));
  EXPECT_TRUE(QTest::qWaitFor([&] { return requested.count() == 1; }, kPatienceMs));
}

TEST_F(ControlsRequestTest, SilentClientIsDropped) {
  ControlsRequestServer server(socketPath(), kShortClientTimeoutMs);
  ASSERT_TRUE(server.listen());
  QSignalSpy requested(&server, &ControlsRequestServer::controlsRequested);
  const auto silent = connectAndSend({});
  EXPECT_TRUE(droppedByServer(*silent));
  EXPECT_EQ(requested.count(), 0);
}

TEST_F(ControlsRequestTest, ClientThatStopsHalfwayIsDropped) {
  ControlsRequestServer server(socketPath(), kShortClientTimeoutMs);
  ASSERT_TRUE(server.listen());
  QSignalSpy requested(&server, &ControlsRequestServer::controlsRequested);
  const auto slow = connectAndSend("show-con");
  EXPECT_TRUE(droppedByServer(*slow));
  EXPECT_EQ(requested.count(), 0);
}

TEST_F(ControlsRequestTest, OversizedRequestIsDroppedWithoutBeingRead) {
  ControlsRequestServer server(socketPath());
  ASSERT_TRUE(server.listen());
  QSignalSpy requested(&server, &ControlsRequestServer::controlsRequested);
  auto client = std::make_unique<QLocalSocket>();
  client->connectToServer(socketPath());
  ASSERT_TRUE(client->waitForConnected(kPatienceMs));
  qint64 handedOver = 0;
  QObject::connect(client.get(), &QLocalSocket::bytesWritten,
                   [&](qint64 count) { handedOver += count; });
  // No line end within the limit, then a request: the request is never looked at.
  const QByteArray flood = QByteArray(8 * 1024 * 1024, 'x') + ControlsRequestServer::kRequestLine;
  client->write(flood);
  EXPECT_TRUE(droppedByServer(*client));
  EXPECT_EQ(requested.count(), 0);
  // Only what fits in the socket's buffers ever left the client: the server stopped reading.
  EXPECT_LT(handedOver, flood.size() / 2);
}

TEST_F(ControlsRequestTest, GarbageIsIgnored) {
  ControlsRequestServer server(socketPath(), kShortClientTimeoutMs);
  ASSERT_TRUE(server.listen());
  QSignalSpy requested(&server, &ControlsRequestServer::controlsRequested);
  std::vector<std::unique_ptr<QLocalSocket>> clients;
  for (const QByteArray& garbage :
       {QByteArray("hello\n"), QByteArray("show-controls"), QByteArray("SHOW-CONTROLS\n"),
        QByteArray("show-controls now\n"), QByteArray(" show-controls\n"),
        QByteArray("show-controls\r\n"), QByteArray("\0show-controls\n", 15),
        QByteArray(63, 'x') + "\n", QByteArray("\xff\xfe\n")}) {
    clients.push_back(connectAndSend(garbage));
  }
  for (const auto& client : clients)
    EXPECT_TRUE(droppedByServer(*client));
  EXPECT_EQ(requested.count(), 0);

  // The server still answers a real request afterwards.
  EXPECT_TRUE(requestControlsFromRunningInstance(socketPath(), kPatienceMs));
  EXPECT_TRUE(QTest::qWaitFor([&] { return requested.count() == 1; }, kPatienceMs));
}

TEST_F(ControlsRequestTest, RequestReachesTheServer) {
  ControlsRequestServer server(socketPath());
  ASSERT_TRUE(server.listen()) << server.errorString().toStdString();
  EXPECT_TRUE(server.isListening());
  EXPECT_EQ(server.socketPath(), socketPath());
  QSignalSpy requested(&server, &ControlsRequestServer::controlsRequested);

  EXPECT_TRUE(requestControlsFromRunningInstance(socketPath(), kPatienceMs));
  EXPECT_TRUE(QTest::qWaitFor([&] { return requested.count() == 1; }, kPatienceMs));
}

TEST_F(ControlsRequestTest, ClientThatKeepsTheConnectionOpenIsAnsweredAtOnce) {
  ControlsRequestServer server(socketPath(), 60000);
  ASSERT_TRUE(server.listen());
  QSignalSpy requested(&server, &ControlsRequestServer::controlsRequested);
  const auto client = connectAndSend(ControlsRequestServer::kRequestLine);
  EXPECT_TRUE(QTest::qWaitFor([&] { return requested.count() == 1; }, kPatienceMs));
  EXPECT_TRUE(droppedByServer(*client));
}

TEST_F(ControlsRequestTest, EveryRequestIsAnnounced) {
  ControlsRequestServer server(socketPath());
  ASSERT_TRUE(server.listen());
  QSignalSpy requested(&server, &ControlsRequestServer::controlsRequested);
  EXPECT_TRUE(requestControlsFromRunningInstance(socketPath(), kPatienceMs));
  EXPECT_TRUE(requestControlsFromRunningInstance(socketPath(), kPatienceMs));
  EXPECT_TRUE(QTest::qWaitFor([&] { return requested.count() == 2; }, kPatienceMs));
  // Nothing more arrives once both are handled.
  EXPECT_TRUE(requestControlsFromRunningInstance(socketPath(), kPatienceMs));
  EXPECT_TRUE(QTest::qWaitFor([&] { return requested.count() == 3; }, kPatienceMs));
}

TEST_F(ControlsRequestTest, ListeningTwiceKeepsTheSocket) {
  ControlsRequestServer server(socketPath());
  ASSERT_TRUE(server.listen());
  EXPECT_TRUE(server.listen());
  QSignalSpy requested(&server, &ControlsRequestServer::controlsRequested);
  EXPECT_TRUE(requestControlsFromRunningInstance(socketPath(), kPatienceMs));
  EXPECT_TRUE(QTest::qWaitFor([&] { return requested.count() == 1; }, kPatienceMs));
}

TEST_F(ControlsRequestTest, OnlyThisUserMayConnect) {
  ControlsRequestServer server(socketPath());
  ASSERT_TRUE(server.listen());
  const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                    QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
  EXPECT_EQ(QFileInfo(socketPath()).permissions() & others, QFile::Permissions());
}

TEST_F(ControlsRequestTest, ServerGoneMeansNobodyAnswers) {
  {
    ControlsRequestServer server(socketPath());
    ASSERT_TRUE(server.listen());
  }
  EXPECT_FALSE(QFileInfo::exists(socketPath()));
  EXPECT_FALSE(requestControlsFromRunningInstance(socketPath(), kPatienceMs));
}

TEST_F(ControlsRequestTest, LaterLaunchWithoutAnApplicationObjectAsksSilently) {
  ControlsRequestServer server(socketPath());
  ASSERT_TRUE(server.listen());
  QSignalSpy requested(&server, &ControlsRequestServer::controlsRequested);
  QProcess launch;
  launch.start(BRIMLY_CONTROLS_REQUEST_CLIENT, {socketPath()});
  ASSERT_TRUE(launch.waitForStarted(kPatienceMs));
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return launch.state() == QProcess::NotRunning && requested.count() == 1; },
      kPatienceMs));
  EXPECT_EQ(launch.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(launch.exitCode(), 0);
  EXPECT_EQ(launch.readAllStandardError(), QByteArray());
  EXPECT_EQ(launch.readAllStandardOutput(), QByteArray());
}

TEST_F(ControlsRequestTest, LaterLaunchFindingNobodySaysNothing) {
  QProcess launch;
  launch.start(BRIMLY_CONTROLS_REQUEST_CLIENT, {socketPath()});
  ASSERT_TRUE(launch.waitForFinished(kPatienceMs));
  EXPECT_EQ(launch.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(launch.exitCode(), 1);
  EXPECT_EQ(launch.readAllStandardError(), QByteArray());
}

TEST(ControlsRequestPath, LiesInTheRuntimeFolderNextToTheLock) {
  EXPECT_EQ(controlsRequestPath("/run/user/1000", "app.brimly.Brimly"),
            "/run/user/1000/app.brimly.Brimly.controls");
}

}  // namespace
}  // namespace brimly
