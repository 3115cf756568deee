#include "desktop/statusnotifier/StatusNotifierTypes.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QImage>
#include <QtEndian>

namespace brimly {

NotifierPixmap notifierPixmap(const QImage& image) {
  const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
  NotifierPixmap pixmap{argb.width(), argb.height(), {}};
  pixmap.pixels.resize(qsizetype(argb.width()) * argb.height() * 4);
  auto* out = reinterpret_cast<uchar*>(pixmap.pixels.data());
  for (int y = 0; y < argb.height(); ++y) {
    const auto* row = reinterpret_cast<const quint32*>(argb.constScanLine(y));
    for (int x = 0; x < argb.width(); ++x, out += 4)
      qToBigEndian(row[x], out);
  }
  return pixmap;
}

void registerStatusNotifierTypes() {
  qDBusRegisterMetaType<NotifierPixmap>();
  qDBusRegisterMetaType<NotifierPixmaps>();
  qDBusRegisterMetaType<NotifierToolTip>();
}

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap) {
  argument.beginStructure();
  argument << pixmap.width << pixmap.height << pixmap.pixels;
  argument.endStructure();
  return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap) {
  argument.beginStructure();
  argument >> pixmap.width >> pixmap.height >> pixmap.pixels;
  argument.endStructure();
  return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip) {
  argument.beginStructure();
  argument << toolTip.iconName << toolTip.iconPixmaps << toolTip.title << toolTip.description;
  argument.endStructure();
  return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip) {
  argument.beginStructure();
  argument >> toolTip.iconName >> toolTip.iconPixmaps >> toolTip.title >> toolTip.description;
  argument.endStructure();
  return argument;
}

}  // namespace brimly
