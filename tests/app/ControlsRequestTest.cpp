#include "app/ControlsRequest.h"

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
#include <cstring>
#include <memory>
#include <vector>

namespace brimly {
namespace {

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

  // A socket file as a crashed instance leaves it: bound, then closed without being removed.
  void leaveStaleSocket() const {
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_GE(fd, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray path = QFile::encodeName(socketPath());
    ASSERT_LT(static_cast<std::size_t>(path.size()), sizeof address.sun_path);
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    ASSERT_EQ(::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ::close(fd);
    ASSERT_TRUE(QFileInfo::exists(socketPath()));
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

TEST(ControlsRequestPath, LiesInTheRuntimeDirectoryNextToTheLock) {
  QTemporaryDir runtime;
  const QByteArray previous = qgetenv("XDG_RUNTIME_DIR");
  qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
  EXPECT_EQ(controlsRequestPath("app.brimly.Brimly"),
            QDir(runtime.path()).filePath("app.brimly.Brimly.controls"));
  if (previous.isNull()) {
    qunsetenv("XDG_RUNTIME_DIR");
  } else {
    qputenv("XDG_RUNTIME_DIR", previous);
  }
}

}  // namespace
}  // namespace brimly
