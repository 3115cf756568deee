#include "desktop/layershell/RepeatedMessageFilter.h"

#include <QString>
#include <QtGlobal>
#include <mutex>

namespace brimly {
namespace {

// Messages come from any thread. The lock is held while a message is written, too: Qt's Wayland
// platform ends the program the moment it has said that the compositor went away, and the thread
// that says it second must not end it while the first is still writing.
std::recursive_mutex lock;
QtMessageHandler before = nullptr;
QString lastMessage;

void dropRepeats(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  const std::lock_guard<std::recursive_mutex> guard(lock);
  if (message == lastMessage) return;
  lastMessage = message;
  if (before != nullptr) before(type, context, message);
}

}  // namespace

RepeatedMessageFilter::RepeatedMessageFilter() {
  before = qInstallMessageHandler(dropRepeats);
}

RepeatedMessageFilter::~RepeatedMessageFilter() {
  qInstallMessageHandler(before);
  const std::lock_guard<std::recursive_mutex> guard(lock);
  before = nullptr;
  lastMessage.clear();
}

}  // namespace brimly
