#include "PrivateSessionBus.h"

#include <QStandardPaths>

namespace brimly::testing {

PrivateSessionBus::PrivateSessionBus() {
  const QString program = QStandardPaths::findExecutable("dbus-daemon");
  if (program.isEmpty()) return;
  daemon_ = std::make_unique<QProcess>();
  daemon_->start(program, {"--session", "--nofork", "--nopidfile", "--print-address=1"});
  if (!daemon_->waitForStarted(10000)) return;
  QByteArray line;
  while (!line.contains('\n') && daemon_->waitForReadyRead(10000)) {
    line += daemon_->readAllStandardOutput();
  }
  address_ = QString::fromUtf8(line.trimmed());
}

PrivateSessionBus::~PrivateSessionBus() {
  if (daemon_ && daemon_->state() != QProcess::NotRunning) {
    daemon_->terminate();
    if (!daemon_->waitForFinished(5000)) daemon_->kill();
    daemon_->waitForFinished(5000);
  }
}

QDBusConnection PrivateSessionBus::connect(const QString& name) const {
  return QDBusConnection::connectToBus(address_, name);
}

}  // namespace brimly::testing
