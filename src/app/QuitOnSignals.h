#pragma once

#include <QObject>
#include <csignal>
#include <utility>
#include <vector>

class QSocketNotifier;

namespace brimly {

// Turns the signals that ask a process to end (SIGTERM from a session or `kill`, SIGINT from
// Ctrl+C in a terminal, SIGHUP when the terminal goes) into the same orderly quit as the "Quit"
// button: QCoreApplication::quit() on the main thread, so that aboutToQuit runs the shutdown
// steps and the process leaves with status 0. The handler itself only writes the signal's number
// into a pipe (the one thing it may safely do); a notifier on the pipe's other end does the rest
// from the event loop. A signal that was ignored when Brimly started (as `nohup` ignores SIGHUP)
// stays ignored. One instance at a time; it puts the previous handlers back when it goes.
class QuitOnSignals : public QObject {
  Q_OBJECT

 public:
  static std::vector<int> endingSignals() { return {SIGTERM, SIGINT, SIGHUP}; }

  // First thing in main: holds the signals back (blocks them) until a QuitOnSignals takes them
  // over, so that one arriving while Brimly starts up is not lost to the default action but ends
  // in the same orderly quit once the event loop runs.
  static void holdUntilTaken(const std::vector<int>& signalNumbers = endingSignals());

  // Takes the signals over and lets any held one through.
  explicit QuitOnSignals(const std::vector<int>& signalNumbers = endingSignals(),
                         QObject* parent = nullptr);
  ~QuitOnSignals() override;
  QuitOnSignals(const QuitOnSignals&) = delete;
  QuitOnSignals& operator=(const QuitOnSignals&) = delete;

  // False when the pipe or a handler could not be set up; the signals then keep their default
  // action.
  bool isActive() const { return active_; }

 signals:
  // One of the signals arrived; the quit has been asked for.
  void quitRequested(int signalNumber);

 private:
  // Opens the pipe and installs the handlers; leaves isActive() false where that fails.
  void takeOver(const std::vector<int>& signalNumbers);
  void drainPipe();

  // Each signal given a handler here, with the action it had before.
  std::vector<std::pair<int, struct sigaction>> installed_;
  int readEnd_ = -1;
  int writeEnd_ = -1;
  QSocketNotifier* notifier_ = nullptr;
  bool active_ = false;
};

}  // namespace brimly
