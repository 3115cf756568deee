#pragma once

#include <QDBusConnection>
#include <QMutex>
#include <QObject>
#include <QStringList>
#include <QThread>
#include <QVariantMap>
#include <optional>

namespace brimly::testing {

// The watcher a tray runs on the session bus (org.kde.StatusNotifierWatcher at
// /StatusNotifierWatcher), as far as an item meets it: it takes items' registrations, says
// whether a host is there and announces one that comes.
class FakeWatcher final : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
  Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHostRegistered)
  Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ registeredItems)
  Q_PROPERTY(int ProtocolVersion READ protocolVersion)

 public:
  bool isHostRegistered() const;
  QStringList registeredItems() const;
  int protocolVersion() const { return 0; }
  void setHostRegistered(bool registered);

 public slots:
  void RegisterStatusNotifierItem(const QString& service);
  void RegisterStatusNotifierHost(const QString& service);

 signals:
  void StatusNotifierItemRegistered(const QString& service);
  void StatusNotifierHostRegistered();

 private:
  mutable QMutex mutex_;
  bool hostRegistered_ = false;
  QStringList items_;
};

// A tray on a bus, on a thread of its own as a panel is a program of its own: its watcher comes
// and goes, a host registers with it, and the host reads the items' properties and clicks them.
// Main-thread methods; the D-Bus work runs on the tray's thread, so that calls between it and the
// item under test (on the main thread) never wait on each other.
class FakeTrayHost {
 public:
  explicit FakeTrayHost(const QString& busAddress);
  ~FakeTrayHost();

  // The tray takes the watcher's name (a panel starting), with a host already there or not.
  void start(bool withHost);
  // The tray lets the name go (a panel ending).
  void stop();
  // A host registers with the running watcher, which announces it.
  void registerHost();
  QStringList registeredItems() const { return watcher_->registeredItems(); }

  // The host calls `method` (Activate, SecondaryActivate, ContextMenu) on the item that
  // registered as `item`, with the position; the answer is not waited for.
  void click(const QString& item, const QString& method, int x, int y) {
    call(item, method, {x, y});
  }
  // The host calls any method of the item's with `arguments`, not waiting for the answer.
  void call(const QString& item, const QString& method, const QVariantList& arguments);
  // The host reads all the item's properties of `interface`; `properties()` has them once read.
  void readProperties(const QString& item, const QString& interface);
  std::optional<QVariantMap> properties() const;

 private:
  void onTrayThread(const std::function<void()>& work, bool wait) const;

  QThread thread_;
  FakeWatcher* watcher_;
  QDBusConnection bus_;
  mutable QMutex mutex_;
  std::optional<QVariantMap> properties_;
};

}  // namespace brimly::testing
