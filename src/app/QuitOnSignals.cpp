#include "app/QuitOnSignals.h"

#include <fcntl.h>
#include <pthread.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <atomic>
#include <cerrno>

namespace brimly {
namespace {

// Where the handler writes: the pipe of the one live QuitOnSignals, or -1.
std::atomic<int> handlerPipe{-1};
static_assert(std::atomic<int>::is_always_lock_free, "the handler reads it");

extern "C" void writeSignalToPipe(int signalNumber) {
  const int savedErrno = errno;
  const int pipe = handlerPipe.load(std::memory_order_relaxed);
  if (pipe >= 0) {
    const unsigned char byte = static_cast<unsigned char>(signalNumber);
    // Non-blocking: with the pipe full, the quit is already on its way.
    [[maybe_unused]] const ssize_t written = ::write(pipe, &byte, 1);
  }
  errno = savedErrno;
}

bool makeNonBlockingAndCloseOnExec(int descriptor) {
  const int statusFlags = ::fcntl(descriptor, F_GETFL);
  const int descriptorFlags = ::fcntl(descriptor, F_GETFD);
  return statusFlags >= 0 && descriptorFlags >= 0 &&
         ::fcntl(descriptor, F_SETFL, statusFlags | O_NONBLOCK) == 0 &&
         ::fcntl(descriptor, F_SETFD, descriptorFlags | FD_CLOEXEC) == 0;
}

sigset_t setOf(const std::vector<int>& signalNumbers) {
  sigset_t set;
  sigemptyset(&set);
  for (const int signalNumber : signalNumbers)
    sigaddset(&set, signalNumber);
  return set;
}

}  // namespace

void QuitOnSignals::holdUntilTaken(const std::vector<int>& signalNumbers) {
  const sigset_t held = setOf(signalNumbers);
  ::pthread_sigmask(SIG_BLOCK, &held, nullptr);
}

QuitOnSignals::QuitOnSignals(const std::vector<int>& signalNumbers, QObject* parent)
    : QObject(parent) {
  takeOver(signalNumbers);
  // A signal held back since start-up arrives now: through the pipe when the handlers are in
  // place, else by its default action, as if Brimly had never held it.
  const sigset_t taken = setOf(signalNumbers);
  ::pthread_sigmask(SIG_UNBLOCK, &taken, nullptr);
}

void QuitOnSignals::takeOver(const std::vector<int>& signalNumbers) {
  int ends[2];
  if (::pipe(ends) != 0) return;
  readEnd_ = ends[0];
  writeEnd_ = ends[1];
  if (!makeNonBlockingAndCloseOnExec(readEnd_) || !makeNonBlockingAndCloseOnExec(writeEnd_)) {
    return;
  }

  notifier_ = new QSocketNotifier(readEnd_, QSocketNotifier::Read, this);
  connect(notifier_, &QSocketNotifier::activated, this, &QuitOnSignals::drainPipe);
  handlerPipe.store(writeEnd_);

  struct sigaction action {};
  action.sa_handler = writeSignalToPipe;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  active_ = true;
  for (const int signalNumber : signalNumbers) {
    struct sigaction current {};
    if (::sigaction(signalNumber, nullptr, &current) != 0) {
      active_ = false;
      continue;
    }
    // A signal ignored by whoever started Brimly (`nohup` ignores SIGHUP) stays ignored.
    if (current.sa_handler == SIG_IGN) continue;
    if (::sigaction(signalNumber, &action, nullptr) != 0) {
      active_ = false;
      continue;
    }
    installed_.emplace_back(signalNumber, current);
  }
}

QuitOnSignals::~QuitOnSignals() {
  for (const auto& [signalNumber, previous] : installed_)
    ::sigaction(signalNumber, &previous, nullptr);
  if (handlerPipe.load() == writeEnd_) handlerPipe.store(-1);
  delete notifier_;
  if (readEnd_ >= 0) ::close(readEnd_);
  if (writeEnd_ >= 0) ::close(writeEnd_);
}

void QuitOnSignals::drainPipe() {
  unsigned char bytes[64];
  int last = 0;
  ssize_t got;
  while ((got = ::read(readEnd_, bytes, sizeof bytes)) > 0)
    last = bytes[got - 1];
  if (last == 0) return;
  emit quitRequested(last);
  QCoreApplication::quit();
}

}  // namespace brimly
