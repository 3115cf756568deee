#include "desktop/layershell/RepeatedMessageFilter.h"

#include <QString>
#include <QtGlobal>
#include <mutex>

namespace brimly {
namespace {

// Messages come from any thread.
std::mutex lock;
QtMessageHandler before = nullptr;
QString lastMessage;

void dropRepeats(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  {
    const std::lock_guard<std::mutex> guard(lock);
    if (message == lastMessage) return;
    lastMessage = message;
  }
  if (before != nullptr) before(type, context, message);
}

}  // namespace

RepeatedMessageFilter::RepeatedMessageFilter() {
  before = qInstallMessageHandler(dropRepeats);
}

RepeatedMessageFilter::~RepeatedMessageFilter() {
  qInstallMessageHandler(before);
  const std::lock_guard<std::mutex> guard(lock);
  before = nullptr;
  lastMessage.clear();
}

}  // namespace brimly
