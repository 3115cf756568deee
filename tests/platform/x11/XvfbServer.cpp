#include "XvfbServer.h"

#include <QStandardPaths>

namespace brimly::testing {

XvfbServer::XvfbServer(int width, int height, const QStringList& extraArguments) {
  const QString program = QStandardPaths::findExecutable("Xvfb");
  if (program.isEmpty()) return;
  process_ = std::make_unique<QProcess>();
  QStringList arguments = {
      "-displayfd", "1",       "-nolisten", "tcp",
      "-noreset",   "-screen", "0",         QString("%1x%2x24").arg(width).arg(height)};
  arguments += extraArguments;
  process_->start(program, arguments);
  if (!process_->waitForStarted(10000)) return;
  // The server writes its display number once it accepts connections.
  QByteArray number;
  while (!number.contains('\n') && process_->waitForReadyRead(10000)) {
    number += process_->readAllStandardOutput();
  }
  number = number.trimmed();
  if (!number.isEmpty()) display_ = ":" + number.toStdString();
}

XvfbServer::~XvfbServer() {
  if (process_ && process_->state() != QProcess::NotRunning) {
    process_->terminate();
    if (!process_->waitForFinished(5000)) process_->kill();
    process_->waitForFinished(5000);
  }
}

}  // namespace brimly::testing
