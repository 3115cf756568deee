#include "FakeTrayHost.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QMetaObject>
#include <QMutexLocker>

namespace brimly::testing {
namespace {

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");
const QString connectionName = QStringLiteral("brimly-fake-tray");

}  // namespace

bool FakeWatcher::isHostRegistered() const {
  QMutexLocker lock(&mutex_);
  return hostRegistered_;
}

QStringList FakeWatcher::registeredItems() const {
  QMutexLocker lock(&mutex_);
  return items_;
}

void FakeWatcher::setHostRegistered(bool registered) {
  QMutexLocker lock(&mutex_);
  hostRegistered_ = registered;
}

void FakeWatcher::RegisterStatusNotifierItem(const QString& service) {
  {
    QMutexLocker lock(&mutex_);
    items_ << service;
  }
  emit StatusNotifierItemRegistered(service);
}

void FakeWatcher::RegisterStatusNotifierHost(const QString&) {
  setHostRegistered(true);
  emit StatusNotifierHostRegistered();
}

FakeTrayHost::FakeTrayHost(const QString& busAddress)
    : watcher_(new FakeWatcher), bus_(QDBusConnection::connectToBus(busAddress, connectionName)) {
  watcher_->moveToThread(&thread_);
  QObject::connect(&thread_, &QThread::finished, watcher_, &QObject::deleteLater);
  thread_.start();
}

FakeTrayHost::~FakeTrayHost() {
  stop();
  thread_.quit();
  thread_.wait();
  QDBusConnection::disconnectFromBus(connectionName);
}

void FakeTrayHost::onTrayThread(const std::function<void()>& work, bool wait) const {
  QMetaObject::invokeMethod(watcher_, work,
                            wait ? Qt::BlockingQueuedConnection : Qt::QueuedConnection);
}

void FakeTrayHost::start(bool withHost) {
  onTrayThread(
      [this, withHost] {
        watcher_->setHostRegistered(withHost);
        bus_.registerObject(watcherPath, watcher_,
                            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals |
                                QDBusConnection::ExportAllProperties);
        bus_.registerService(watcherName);
      },
      true);
}

void FakeTrayHost::stop() {
  onTrayThread(
      [this] {
        bus_.unregisterService(watcherName);
        bus_.unregisterObject(watcherPath);
      },
      true);
}

void FakeTrayHost::registerHost() {
  onTrayThread([this] { watcher_->RegisterStatusNotifierHost(QStringLiteral("fake-host")); }, true);
}

void FakeTrayHost::call(const QString& item, const QString& method, const QVariantList& arguments) {
  onTrayThread(
      [this, item, method, arguments] {
        QDBusMessage call =
            QDBusMessage::createMethodCall(item, QStringLiteral("/StatusNotifierItem"),
                                           QStringLiteral("org.kde.StatusNotifierItem"), method);
        call.setArguments(arguments);
        bus_.asyncCall(call);
      },
      true);
}

void FakeTrayHost::readProperties(const QString& item, const QString& interface) {
  {
    QMutexLocker lock(&mutex_);
    properties_.reset();
  }
  // Waits on the tray's thread for the item's answer, which the main thread gives once the test
  // lets its event loop run.
  onTrayThread(
      [this, item, interface] {
        QDBusMessage call = QDBusMessage::createMethodCall(
            item, QStringLiteral("/StatusNotifierItem"),
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("GetAll"));
        call << interface;
        const QDBusMessage reply = bus_.call(call);
        QVariantMap read;
        if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty()) {
          qvariant_cast<QDBusArgument>(reply.arguments().constFirst()) >> read;
        }
        QMutexLocker lock(&mutex_);
        properties_ = read;
      },
      false);
}

std::optional<QVariantMap> FakeTrayHost::properties() const {
  QMutexLocker lock(&mutex_);
  return properties_;
}

}  // namespace brimly::testing
