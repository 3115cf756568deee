#pragma once

#include <QObject>
#include <QString>
#include <QtGlobal>
#include <optional>

class QSocketNotifier;

namespace brimly {

class ControlsRequestConnection;

// The socket through which a later launch asks the running Brimly for its controls: next to the
// single-instance lock in the runtime folder `directory`, named after `bundleIdentifier`.
QString controlsRequestPath(const QString& directory, const QString& bundleIdentifier);

// Listens for a later launch of the program asking to see the control card: on desktops without a
// tray, starting Brimly again is the way to reach it. A connection may send one line,
// `show-controls`; anything else is dropped, and so is a client that sends more than a few dozen
// bytes or takes longer than the client time limit.
//
// What a burst of connections may take is bounded: at most kMaxClients are read at once (the
// others wait in the system's queue), each with a buffer of kMaxRequestBytes. When the process has
// no descriptor left for a new connection, the socket keeps listening and accepting resumes a
// moment later, so the channel outlives any flood. Main thread only.
class ControlsRequestServer : public QObject {
  Q_OBJECT

 public:
  // The whole request line, its end included.
  static constexpr const char* kRequestLine = "show-controls\n";
  // The most a connection may send before it is dropped.
  static constexpr qint64 kMaxRequestBytes = 64;
  static constexpr int kDefaultClientTimeoutMs = 2000;
  // The most connections read at the same time.
  static constexpr int kMaxClients = 8;
  // How long accepting pauses after the process ran out of descriptors.
  static constexpr int kRetryAfterExhaustionMs = 250;

  explicit ControlsRequestServer(QString socketPath, int clientTimeoutMs = kDefaultClientTimeoutMs,
                                 QObject* parent = nullptr);
  // Stops listening and removes its socket (never one that has replaced it since).
  ~ControlsRequestServer() override;

  // Listens at the path, replacing a socket of this user's that an earlier instance left there.
  // Only the holder of the single-instance lock may call this. Anything else at the path — another
  // user's socket, a file, a folder, a link — is left alone and makes listening fail, with
  // errorString() naming it.
  bool listen();
  bool isListening() const { return listener_ >= 0; }
  QString errorString() const { return errorString_; }
  QString socketPath() const { return socketPath_; }
  // The connections being read now.
  int openClients() const { return openClients_; }

 signals:
  // A later launch asked for the controls.
  void controlsRequested();

 private:
  void acceptClients();
  void clientFinished(ControlsRequestConnection* client, bool requested);
  void pauseAccepting();
  void close();

  QString socketPath_;
  int clientTimeoutMs_;
  int listener_ = -1;
  // The socket file made by listen(): only that one is removed again.
  std::optional<std::pair<quint64, quint64>> socketIdentity_;
  QSocketNotifier* incoming_ = nullptr;
  bool paused_ = false;
  int openClients_ = 0;
  QString errorString_;
};

// Asks the instance listening at `socketPath` to show its controls: connects, sends the request
// and waits until it is written, within `timeoutMs` in all. True once the request was handed
// over; false at once when nobody listens there, or when the socket there is not this user's own.
// Needs neither an application object nor an event loop, so a launch that finds Brimly running
// can ask before it sets anything up.
bool requestControlsFromRunningInstance(const QString& socketPath, int timeoutMs);

}  // namespace brimly
