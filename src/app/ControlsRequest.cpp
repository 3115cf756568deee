#include "app/ControlsRequest.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTimer>
#include <cstring>
#include <utility>

#include "app/SingleInstanceLock.h"

namespace brimly {

QString controlsRequestPath(const QString& bundleIdentifier) {
  return QDir(SingleInstanceLock::runtimeDirectory()).filePath(bundleIdentifier + ".controls");
}

ControlsRequestServer::ControlsRequestServer(QString socketPath, int clientTimeoutMs,
                                             QObject* parent)
    : QObject(parent),
      socketPath_(std::move(socketPath)),
      clientTimeoutMs_(clientTimeoutMs),
      server_(new QLocalServer(this)) {
  // Nobody but this user may ask, even where the runtime directory falls back to a shared one.
  server_->setSocketOptions(QLocalServer::UserAccessOption);
  connect(server_, &QLocalServer::newConnection, this, &ControlsRequestServer::acceptClients);
}

ControlsRequestServer::~ControlsRequestServer() = default;

bool ControlsRequestServer::listen() {
  if (server_->isListening()) return true;
  errorString_.clear();
  if (socketPath_.isEmpty()) {
    errorString_ = "no socket path";
    return false;
  }
  // A socket file outlives a crashed instance and would make listening fail.
  QLocalServer::removeServer(socketPath_);
  if (!server_->listen(socketPath_)) {
    errorString_ = server_->errorString();
    return false;
  }
  return true;
}

bool ControlsRequestServer::isListening() const {
  return server_->isListening();
}

void ControlsRequestServer::acceptClients() {
  while (QLocalSocket* client = server_->nextPendingConnection()) {
    // Qt reads no further than this from the connection, however much is sent.
    client->setReadBufferSize(kMaxRequestBytes);
    connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
    connect(client, &QLocalSocket::readyRead, this, [this, client] { readRequest(client); });

    auto* deadline = new QTimer(client);
    deadline->setSingleShot(true);
    connect(deadline, &QTimer::timeout, client, [client] {
      client->abort();
      client->deleteLater();
    });
    deadline->start(clientTimeoutMs_);

    if (client->bytesAvailable() > 0) readRequest(client);
  }
}

void ControlsRequestServer::readRequest(QLocalSocket* client) {
  if (!client->canReadLine()) {
    // A line that does not fit is no request.
    if (client->bytesAvailable() >= kMaxRequestBytes) {
      client->abort();
      client->deleteLater();
    }
    return;
  }
  const QByteArray line = client->readLine(kMaxRequestBytes + 1);
  // One request per connection.
  client->abort();
  client->deleteLater();
  if (line == kRequestLine) emit controlsRequested();
}

bool requestControlsFromRunningInstance(const QString& socketPath, int timeoutMs) {
  if (socketPath.isEmpty() || timeoutMs < 0) return false;
  const QDeadlineTimer deadline(timeoutMs);
  QLocalSocket socket;
  socket.connectToServer(socketPath, QIODevice::WriteOnly);
  if (!socket.waitForConnected(static_cast<int>(deadline.remainingTime()))) return false;

  const auto length = static_cast<qint64>(std::strlen(ControlsRequestServer::kRequestLine));
  if (socket.write(ControlsRequestServer::kRequestLine, length) != length) return false;
  while (socket.bytesToWrite() > 0) {
    if (!socket.waitForBytesWritten(static_cast<int>(deadline.remainingTime()))) return false;
  }
  socket.disconnectFromServer();
  return true;
}

}  // namespace brimly
