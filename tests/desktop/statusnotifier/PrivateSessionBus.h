#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <memory>

namespace brimly::testing {

// A D-Bus session bus of the test program's own: a dbus-daemon started for it (the daemon picks
// its address and tells it on its standard output), stopped when the object goes.
class PrivateSessionBus {
 public:
  PrivateSessionBus();
  ~PrivateSessionBus();

  // False when dbus-daemon is not installed or did not come up.
  bool isRunning() const { return !address_.isEmpty(); }
  const QString& address() const { return address_; }
  // A new connection to the bus under the local name `name` (each name one connection).
  QDBusConnection connect(const QString& name) const;

 private:
  std::unique_ptr<QProcess> daemon_;
  QString address_;
};

}  // namespace brimly::testing
