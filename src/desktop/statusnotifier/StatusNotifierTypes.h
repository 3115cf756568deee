#pragma once

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QString>

class QDBusArgument;
class QImage;

namespace brimly {

// One picture of the item's icon as a StatusNotifierItem host reads it (D-Bus "(iiay)"): ARGB32
// pixels, row by row, each pixel's four bytes in network byte order (alpha first).
struct NotifierPixmap {
  int width = 0;
  int height = 0;
  QByteArray pixels;
};
using NotifierPixmaps = QList<NotifierPixmap>;

// The item's tool tip (D-Bus "(sa(iiay)ss)"): an icon by name or by pictures, a title and a
// longer description.
struct NotifierToolTip {
  QString iconName;
  NotifierPixmaps iconPixmaps;
  QString title;
  QString description;
};

// `image` as a host reads it.
NotifierPixmap notifierPixmap(const QImage& image);

// Makes the two types known to Qt's D-Bus; call before the item is put on a bus.
void registerStatusNotifierTypes();

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip);

}  // namespace brimly

Q_DECLARE_METATYPE(brimly::NotifierPixmap)
Q_DECLARE_METATYPE(brimly::NotifierToolTip)
