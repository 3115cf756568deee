#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QString>

#include "desktop/statusnotifier/StatusNotifierTypes.h"

// The part of the interface Brimly answers: an icon that never changes (so it announces no
// change), and the clicks.
#define BRIMLY_STATUS_NOTIFIER_ITEM_MEMBERS                                \
  "  <property name=\"Category\" type=\"s\" access=\"read\"/>\n"           \
  "  <property name=\"Id\" type=\"s\" access=\"read\"/>\n"                 \
  "  <property name=\"Title\" type=\"s\" access=\"read\"/>\n"              \
  "  <property name=\"Status\" type=\"s\" access=\"read\"/>\n"             \
  "  <property name=\"WindowId\" type=\"i\" access=\"read\"/>\n"           \
  "  <property name=\"IconName\" type=\"s\" access=\"read\"/>\n"           \
  "  <property name=\"IconPixmap\" type=\"a(iiay)\" access=\"read\"/>\n"   \
  "  <property name=\"ToolTip\" type=\"(sa(iiay)ss)\" access=\"read\"/>\n" \
  "  <property name=\"ItemIsMenu\" type=\"b\" access=\"read\"/>\n"         \
  "  <method name=\"Activate\">\n"                                         \
  "    <arg name=\"x\" type=\"i\" direction=\"in\"/>\n"                    \
  "    <arg name=\"y\" type=\"i\" direction=\"in\"/>\n"                    \
  "  </method>\n"                                                          \
  "  <method name=\"SecondaryActivate\">\n"                                \
  "    <arg name=\"x\" type=\"i\" direction=\"in\"/>\n"                    \
  "    <arg name=\"y\" type=\"i\" direction=\"in\"/>\n"                    \
  "  </method>\n"                                                          \
  "  <method name=\"ContextMenu\">\n"                                      \
  "    <arg name=\"x\" type=\"i\" direction=\"in\"/>\n"                    \
  "    <arg name=\"y\" type=\"i\" direction=\"in\"/>\n"                    \
  "  </method>\n"                                                          \
  "  <method name=\"Scroll\">\n"                                           \
  "    <arg name=\"delta\" type=\"i\" direction=\"in\"/>\n"                \
  "    <arg name=\"orientation\" type=\"s\" direction=\"in\"/>\n"          \
  "  </method>\n"

namespace brimly {

class StatusNotifierItem;

// The org.kde.StatusNotifierItem interface of Brimly's item, as hosts (Plasma's system tray,
// GNOME's AppIndicator extension, waybar) read and call it: what the item shows, and the clicks on
// it with the position the host passes. It names no menu, so that a host calls ContextMenu on a
// right click. Everything it answers comes from its item; it keeps nothing of its own.
class StatusNotifierItemAdaptor : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
  Q_CLASSINFO(
      "D-Bus Introspection",
      "<interface name=\"org.kde.StatusNotifierItem\">\n" BRIMLY_STATUS_NOTIFIER_ITEM_MEMBERS
      "</interface>\n")
  Q_PROPERTY(QString Category READ category)
  Q_PROPERTY(QString Id READ id)
  Q_PROPERTY(QString Title READ title)
  Q_PROPERTY(QString Status READ status)
  Q_PROPERTY(int WindowId READ windowId)
  Q_PROPERTY(QString IconName READ iconName)
  Q_PROPERTY(brimly::NotifierPixmaps IconPixmap READ iconPixmap)
  Q_PROPERTY(brimly::NotifierToolTip ToolTip READ toolTip)
  Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)

 public:
  explicit StatusNotifierItemAdaptor(StatusNotifierItem& item);

  QString category() const { return QStringLiteral("ApplicationStatus"); }
  QString id() const;
  QString title() const;
  QString status() const { return QStringLiteral("Active"); }
  int windowId() const { return 0; }
  // Empty: hosts draw the pictures, which need no icon theme.
  QString iconName() const { return {}; }
  NotifierPixmaps iconPixmap() const;
  NotifierToolTip toolTip() const;
  bool itemIsMenu() const { return false; }

 public slots:
  // A left click (Activate), a middle click (SecondaryActivate) and a right click (ContextMenu),
  // each with the position the host passes.
  void Activate(int x, int y);
  void SecondaryActivate(int x, int y);
  void ContextMenu(int x, int y);
  // The wheel over the item means nothing to Brimly.
  void Scroll(int delta, const QString& orientation);

 private:
  StatusNotifierItem& item_;
};

// The same interface naming a menu, for the hosts that show no item without one (GNOME's
// AppIndicator extension). The menu is a path where no menu is: such a host finds it empty, and
// keeps the single left and the right click for it; a double click activates the item, and a
// middle click is its secondary activation.
class StatusNotifierItemMenuAdaptor final : public StatusNotifierItemAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
  Q_CLASSINFO(
      "D-Bus Introspection",
      "<interface name=\"org.kde.StatusNotifierItem\">\n" BRIMLY_STATUS_NOTIFIER_ITEM_MEMBERS
      "  <property name=\"Menu\" type=\"o\" access=\"read\"/>\n"
      "</interface>\n")
  Q_PROPERTY(QDBusObjectPath Menu READ menu)

 public:
  using StatusNotifierItemAdaptor::StatusNotifierItemAdaptor;

  QDBusObjectPath menu() const { return QDBusObjectPath(QStringLiteral("/MenuBar")); }
};

}  // namespace brimly
