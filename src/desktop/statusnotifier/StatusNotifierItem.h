#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QPoint>
#include <QString>
#include <functional>

#include "desktop/statusnotifier/EchoedClicks.h"
#include "desktop/statusnotifier/StatusNotifierTypes.h"

class QDBusServiceWatcher;

namespace brimly {

// Brimly's own StatusNotifierItem on a D-Bus session bus: the item that Plasma's system tray,
// GNOME's AppIndicator extension and waybar show, registered with the bus's
// org.kde.StatusNotifierWatcher. Unlike Qt's tray icon it passes on the position the host sends
// with each click. It follows the watcher while Brimly runs: registers again with one that comes
// (a panel restarted), and tells when it is shown and when not. Main thread only.
class StatusNotifierItem final : public QObject, public QDBusContext {
  Q_OBJECT

 public:
  // What the item shows.
  struct Look {
    QString id;       // stable, for the host's settings
    QString title;    // the application's name
    QString toolTip;  // the tool tip's title
    NotifierPixmaps icon;
  };

  // Puts the item on `bus` (at /StatusNotifierItem, under a name of its own) and registers it
  // with the watcher, if one is there. `namesMenu`: for the hosts that show no item without a
  // menu (GNOME's AppIndicator extension); others then keep the right click for that menu.
  // `now`: milliseconds on a steady clock, by which a host's echo of a click is told.
  using Clock = std::function<qint64()>;
  StatusNotifierItem(const QDBusConnection& bus, Look look, bool namesMenu,
                     Clock now = steadyMilliseconds, QObject* parent = nullptr);
  ~StatusNotifierItem() override;

  static qint64 steadyMilliseconds();

  const Look& look() const { return look_; }
  // Whether a watcher holds the item and a host shows it.
  bool isShown() const { return shown_; }
  // The bus name the item is registered under.
  const QString& serviceName() const { return serviceName_; }

  // A host's click (left, middle or right) at `hostPosition`, as the host passed it, during the
  // host's call. A call that only echoes the one before is dropped.
  void hostClicked(QPoint hostPosition);

 signals:
  // `hostProgram` names the calling program as the system knows it (empty where unknown).
  void clicked(QPoint hostPosition, const QString& hostProgram);
  void shownChanged(bool shown);

 private slots:
  void hostsChanged();

 private:
  // The name of the program whose call is being answered, as the system knows it.
  QString callingProgram() const;
  // Registers the item with the watcher now on the bus, and learns whether a host is there.
  void registerWithWatcher();
  void setShown(bool shown);

  QDBusConnection bus_;
  Look look_;
  QString serviceName_;
  QDBusServiceWatcher* watcherWatch_;
  bool shown_ = false;
  Clock now_;
  EchoedClicks echoes_;
};

}  // namespace brimly
