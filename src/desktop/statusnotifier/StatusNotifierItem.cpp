#include "desktop/statusnotifier/StatusNotifierItem.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QFile>
#include <chrono>
#include <utility>

#include "desktop/statusnotifier/StatusNotifierItemAdaptor.h"

namespace brimly {
namespace {

const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");
const QString watcherInterface = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString itemPath = QStringLiteral("/StatusNotifierItem");
// A watcher that does not answer within this long is taken for none, rather than keeping the
// program waiting.
constexpr int callTimeoutMs = 2000;

// The name hosts know the item by: the process and a count, as the protocol asks.
QString uniqueServiceName() {
  static int made = 0;
  return QStringLiteral("org.kde.StatusNotifierItem-%1-%2")
      .arg(QCoreApplication::applicationPid())
      .arg(++made);
}

QDBusMessage callWatcher(const QDBusConnection& bus, const QString& interface,
                         const QString& method, const QVariantList& arguments) {
  QDBusMessage call =
      QDBusMessage::createMethodCall(watcherService, watcherPath, interface, method);
  call.setArguments(arguments);
  return bus.call(call, QDBus::Block, callTimeoutMs);
}

}  // namespace

StatusNotifierItem::StatusNotifierItem(const QDBusConnection& bus, Look look, bool namesMenu,
                                       Clock now, QObject* parent)
    : QObject(parent),
      bus_(bus),
      look_(std::move(look)),
      serviceName_(uniqueServiceName()),
      watcherWatch_(new QDBusServiceWatcher(watcherService, bus_,
                                            QDBusServiceWatcher::WatchForOwnerChange, this)),
      now_(std::move(now)) {
  registerStatusNotifierTypes();
  if (namesMenu) {
    new StatusNotifierItemMenuAdaptor(*this);
  } else {
    new StatusNotifierItemAdaptor(*this);
  }
  if (!bus_.isConnected()) return;
  bus_.registerObject(itemPath, this, QDBusConnection::ExportAdaptors);
  bus_.registerService(serviceName_);
  // Plasma's watcher also says when a host goes; the protocol's own signal only when one comes.
  for (const char* change : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
    bus_.connect(watcherService, watcherPath, watcherInterface, QString::fromLatin1(change), this,
                 SLOT(hostsChanged()));
  }
  connect(watcherWatch_, &QDBusServiceWatcher::serviceOwnerChanged, this,
          [this](const QString&, const QString&, const QString& newOwner) {
            if (newOwner.isEmpty()) {
              setShown(false);
            } else {
              registerWithWatcher();
            }
          });
  registerWithWatcher();
}

StatusNotifierItem::~StatusNotifierItem() {
  if (!bus_.isConnected()) return;
  bus_.unregisterService(serviceName_);
  bus_.unregisterObject(itemPath);
}

qint64 StatusNotifierItem::steadyMilliseconds() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

void StatusNotifierItem::hostClicked(QPoint hostPosition) {
  const QString caller = calledFromDBus() ? message().service() : QString();
  if (echoes_.isEcho(caller, hostPosition, now_())) return;
  emit clicked(hostPosition, callingProgram());
}

QString StatusNotifierItem::callingProgram() const {
  // Qt answers an adaptor's calls in the context of the object it adapts: this one.
  if (!calledFromDBus()) return {};
  const QDBusReply<uint> pid = connection().interface()->servicePid(message().service());
  if (!pid.isValid()) return {};
  QFile name(QStringLiteral("/proc/%1/comm").arg(pid.value()));
  if (!name.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(name.readAll()).trimmed();
}

void StatusNotifierItem::registerWithWatcher() {
  const QDBusMessage reply = callWatcher(
      bus_, watcherInterface, QStringLiteral("RegisterStatusNotifierItem"), {serviceName_});
  if (reply.type() != QDBusMessage::ReplyMessage) {
    setShown(false);
    return;
  }
  hostsChanged();
}

void StatusNotifierItem::hostsChanged() {
  const QDBusMessage reply =
      callWatcher(bus_, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                  {watcherInterface, QStringLiteral("IsStatusNotifierHostRegistered")});
  const bool hosted =
      reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty() &&
      qvariant_cast<QDBusVariant>(reply.arguments().constFirst()).variant().toBool();
  setShown(hosted);
}

void StatusNotifierItem::setShown(bool shown) {
  if (shown == shown_) return;
  shown_ = shown;
  emit shownChanged(shown);
}

}  // namespace brimly
