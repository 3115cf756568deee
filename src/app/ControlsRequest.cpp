#include "app/ControlsRequest.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <QByteArray>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <functional>
#include <system_error>
#include <utility>

namespace brimly {
namespace {

QString systemMessage(int error) {
  return QString::fromStdString(std::generic_category().message(error));
}

// Close-on-exec, so that no program Brimly starts inherits it, and non-blocking, so that the main
// thread never waits on it.
void makeNonBlockingAndPrivate(int fd) {
  ::fcntl(fd, F_SETFD, FD_CLOEXEC);
  ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) | O_NONBLOCK);
}

// The address of the socket file at `path`; nothing when the path does not fit one.
std::optional<sockaddr_un> socketAddress(const QByteArray& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.isEmpty() || static_cast<std::size_t>(path.size()) >= sizeof address.sun_path) {
    return std::nullopt;
  }
  std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
  return address;
}

// How many connections the system queues for the server beyond those it reads (the senders'
// memory, not Brimly's); a launch that finds the queue full waits until its time limit.
constexpr int kQueuedConnections = 64;

// A peer that hung up must not end this process with SIGPIPE. Linux says so per call; macOS has no
// such flag and says it per socket instead (SO_NOSIGPIPE).
#ifdef MSG_NOSIGNAL
constexpr int kNoSignalOnHangUp = MSG_NOSIGNAL;
#else
constexpr int kNoSignalOnHangUp = 0;
#endif

}  // namespace

// One accepted connection: reads at most kMaxRequestBytes until a line ends, the peer hangs up or
// the time limit passes, then reports whether the line was the request.
class ControlsRequestConnection : public QObject {
 public:
  using Finished = std::function<void(ControlsRequestConnection*, bool requested)>;

  ControlsRequestConnection(int fd, int timeoutMs, Finished finished, QObject* parent)
      : QObject(parent),
        fd_(fd),
        readable_(new QSocketNotifier(fd, QSocketNotifier::Read, this)),
        finished_(std::move(finished)) {
    connect(readable_, &QSocketNotifier::activated, this, [this] { read(); });
    auto* deadline = new QTimer(this);
    deadline->setSingleShot(true);
    connect(deadline, &QTimer::timeout, this, [this] { finish(false); });
    deadline->start(timeoutMs);
  }
  ~ControlsRequestConnection() override { closeSocket(); }

  ControlsRequestConnection(const ControlsRequestConnection&) = delete;
  ControlsRequestConnection& operator=(const ControlsRequestConnection&) = delete;

 private:
  void read() {
    char buffer[ControlsRequestServer::kMaxRequestBytes];
    const auto room =
        static_cast<std::size_t>(ControlsRequestServer::kMaxRequestBytes - received_.size());
    const ssize_t count = ::read(fd_, buffer, room);
    if (count < 0 && (errno == EINTR || errno == EAGAIN || errno == EWOULDBLOCK)) return;
    if (count <= 0) {
      finish(false);
      return;
    }
    received_.append(buffer, count);
    const qsizetype end = received_.indexOf('\n');
    // One line per connection; a line that does not fit is no request.
    if (end >= 0) {
      finish(received_.left(end + 1) == ControlsRequestServer::kRequestLine);
    } else if (received_.size() >= ControlsRequestServer::kMaxRequestBytes) {
      finish(false);
    }
  }

  void finish(bool requested) {
    if (fd_ < 0) return;
    closeSocket();
    if (finished_) finished_(this, requested);
  }

  void closeSocket() {
    if (fd_ < 0) return;
    readable_->setEnabled(false);
    ::close(fd_);
    fd_ = -1;
  }

  int fd_;
  QSocketNotifier* readable_;
  Finished finished_;
  QByteArray received_;
};

QString controlsRequestPath(const QString& directory, const QString& bundleIdentifier) {
  return QDir(directory).filePath(bundleIdentifier + ".controls");
}

ControlsRequestServer::ControlsRequestServer(QString socketPath, int clientTimeoutMs,
                                             QObject* parent)
    : QObject(parent), socketPath_(std::move(socketPath)), clientTimeoutMs_(clientTimeoutMs) {}

ControlsRequestServer::~ControlsRequestServer() {
  close();
}

bool ControlsRequestServer::listen() {
  if (isListening()) return true;
  errorString_.clear();
  const QByteArray path = QFile::encodeName(socketPath_);
  const std::optional<sockaddr_un> address = socketAddress(path);
  if (!address) {
    errorString_ = socketPath_.isEmpty()
                       ? QStringLiteral("no socket path")
                       : QStringLiteral("%1 is too long for a socket").arg(socketPath_);
    return false;
  }

  // A socket file outlives a crashed instance and would make binding fail; only this user's own
  // socket is cleared away.
  struct stat status {};
  if (::lstat(path.constData(), &status) == 0) {
    if (!S_ISSOCK(status.st_mode)) {
      errorString_ = QStringLiteral("%1 is in the way: it is no socket").arg(socketPath_);
      return false;
    }
    if (status.st_uid != ::geteuid()) {
      errorString_ = QStringLiteral("%1 belongs to another user").arg(socketPath_);
      return false;
    }
    ::unlink(path.constData());
  }

  const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
  if (fd < 0) {
    errorString_ = QStringLiteral("cannot make a socket: %1").arg(systemMessage(errno));
    return false;
  }
  makeNonBlockingAndPrivate(fd);
  if (::bind(fd, reinterpret_cast<const sockaddr*>(&*address), sizeof *address) != 0 ||
      ::chmod(path.constData(), 0600) != 0 || ::listen(fd, kQueuedConnections) != 0 ||
      ::lstat(path.constData(), &status) != 0) {
    const int error = errno;
    ::close(fd);
    errorString_ = QStringLiteral("cannot listen at %1: %2").arg(socketPath_, systemMessage(error));
    return false;
  }
  listener_ = fd;
  socketIdentity_ = {static_cast<quint64>(status.st_dev), static_cast<quint64>(status.st_ino)};
  incoming_ = new QSocketNotifier(listener_, QSocketNotifier::Read, this);
  connect(incoming_, &QSocketNotifier::activated, this, &ControlsRequestServer::acceptClients);
  return true;
}

void ControlsRequestServer::acceptClients() {
  while (openClients_ < kMaxClients) {
    const int client = ::accept(listener_, nullptr, nullptr);
    if (client < 0) {
      const int error = errno;
      if (error == EINTR || error == ECONNABORTED) continue;
      if (error == EAGAIN || error == EWOULDBLOCK) return;
      // Out of descriptors (or some other trouble): the connection waits in the queue, and so
      // does the socket, until the next try.
      pauseAccepting();
      return;
    }
    makeNonBlockingAndPrivate(client);
    ++openClients_;
    new ControlsRequestConnection(
        client, clientTimeoutMs_,
        [this](ControlsRequestConnection* finished, bool requested) {
          clientFinished(finished, requested);
        },
        this);
  }
  // Full: the rest wait in the system's queue until a connection ends.
  incoming_->setEnabled(false);
}

void ControlsRequestServer::clientFinished(ControlsRequestConnection* client, bool requested) {
  client->deleteLater();
  --openClients_;
  if (!paused_) incoming_->setEnabled(true);
  if (requested) emit controlsRequested();
}

void ControlsRequestServer::pauseAccepting() {
  incoming_->setEnabled(false);
  if (paused_) return;
  paused_ = true;
  QTimer::singleShot(kRetryAfterExhaustionMs, this, [this] {
    paused_ = false;
    if (openClients_ < kMaxClients) incoming_->setEnabled(true);
  });
}

void ControlsRequestServer::close() {
  if (!isListening()) return;
  delete incoming_;
  incoming_ = nullptr;
  ::close(listener_);
  listener_ = -1;
  const QByteArray path = QFile::encodeName(socketPath_);
  struct stat status {};
  if (socketIdentity_ && ::lstat(path.constData(), &status) == 0 &&
      static_cast<quint64>(status.st_dev) == socketIdentity_->first &&
      static_cast<quint64>(status.st_ino) == socketIdentity_->second) {
    ::unlink(path.constData());
  }
  socketIdentity_.reset();
}

bool requestControlsFromRunningInstance(const QString& socketPath, int timeoutMs) {
  if (timeoutMs < 0) return false;
  const QByteArray path = QFile::encodeName(socketPath);
  const std::optional<sockaddr_un> address = socketAddress(path);
  if (!address) return false;
  // Only a socket of this user's own is asked: another user's would receive the request.
  struct stat status {};
  if (::lstat(path.constData(), &status) != 0 || !S_ISSOCK(status.st_mode) ||
      status.st_uid != ::geteuid()) {
    return false;
  }

  const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
  if (fd < 0) return false;
  ::fcntl(fd, F_SETFD, FD_CLOEXEC);
#ifdef SO_NOSIGPIPE
  const int on = 1;
  ::setsockopt(fd, SOL_SOCKET, SO_NOSIGPIPE, &on, sizeof on);
#endif
  // Connecting waits while the listener's queue is full, and sending while its buffer is; neither
  // longer than the time limit in all.
  const QDeadlineTimer deadline(timeoutMs);
  const auto limitWaitsToWhatIsLeft = [&] {
    const qint64 left = std::max<qint64>(deadline.remainingTime(), 1);
    timeval limit{};
    limit.tv_sec = static_cast<decltype(limit.tv_sec)>(left / 1000);
    limit.tv_usec = static_cast<decltype(limit.tv_usec)>((left % 1000) * 1000);
    return ::setsockopt(fd, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit) == 0 &&
           !deadline.hasExpired();
  };
  bool handedOver = false;
  if (limitWaitsToWhatIsLeft() &&
      ::connect(fd, reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0) {
    const char* next = ControlsRequestServer::kRequestLine;
    std::size_t left = std::strlen(next);
    while (left > 0 && limitWaitsToWhatIsLeft()) {
      const ssize_t written = ::send(fd, next, left, kNoSignalOnHangUp);
      if (written < 0 && errno == EINTR) continue;
      if (written <= 0) break;
      next += written;
      left -= static_cast<std::size_t>(written);
    }
    handedOver = left == 0;
  }
  ::close(fd);
  return handedOver;
}

}  // namespace brimly
