#pragma once

#include <QObject>
#include <QString>
#include <QtGlobal>

class QLocalServer;
class QLocalSocket;

namespace brimly {

// The socket through which a later launch asks the running Brimly for its controls: next to the
// single-instance lock in this user's runtime directory, named after `bundleIdentifier`.
QString controlsRequestPath(const QString& bundleIdentifier);

// Listens for a later launch of the program asking to see the control card: on desktops without a
// tray, starting Brimly again is the way to reach it. A connection may send one line,
// `show-controls`; anything else is dropped, and so is a client that sends more than a few dozen
// bytes or takes longer than the client time limit. Main thread only.
class ControlsRequestServer : public QObject {
  Q_OBJECT

 public:
  // The whole request line, its end included.
  static constexpr const char* kRequestLine = "show-controls\n";
  // The most a connection may send before it is dropped.
  static constexpr qint64 kMaxRequestBytes = 64;
  static constexpr int kDefaultClientTimeoutMs = 2000;

  explicit ControlsRequestServer(QString socketPath, int clientTimeoutMs = kDefaultClientTimeoutMs,
                                 QObject* parent = nullptr);
  ~ControlsRequestServer() override;

  // Clears whatever an earlier instance left at the path and listens there. Only the holder of
  // the single-instance lock may call this: a socket at the path is its own or a dead one's.
  // False, with errorString() saying why, when listening failed.
  bool listen();
  bool isListening() const;
  QString errorString() const { return errorString_; }
  QString socketPath() const { return socketPath_; }

 signals:
  // A later launch asked for the controls.
  void controlsRequested();

 private:
  void acceptClients();
  void readRequest(QLocalSocket* client);

  QString socketPath_;
  int clientTimeoutMs_;
  QLocalServer* server_;
  QString errorString_;
};

// Asks the instance listening at `socketPath` to show its controls: connects, sends the request
// and waits until it is written, within `timeoutMs` in all. True once the request was handed
// over; false at once when nobody listens there. Needs neither an application object nor an event
// loop, so a launch that finds Brimly running can ask before it sets anything up.
bool requestControlsFromRunningInstance(const QString& socketPath, int timeoutMs);

}  // namespace brimly
