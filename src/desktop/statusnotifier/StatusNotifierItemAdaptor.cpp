#include "desktop/statusnotifier/StatusNotifierItemAdaptor.h"

#include "desktop/statusnotifier/StatusNotifierItem.h"

namespace brimly {

StatusNotifierItemAdaptor::StatusNotifierItemAdaptor(StatusNotifierItem& item)
    : QDBusAbstractAdaptor(&item), item_(item) {}

QString StatusNotifierItemAdaptor::id() const {
  return item_.look().id;
}

QString StatusNotifierItemAdaptor::title() const {
  return item_.look().title;
}

NotifierPixmaps StatusNotifierItemAdaptor::iconPixmap() const {
  return item_.look().icon;
}

NotifierToolTip StatusNotifierItemAdaptor::toolTip() const {
  return NotifierToolTip{{}, {}, item_.look().toolTip, {}};
}

void StatusNotifierItemAdaptor::Activate(int x, int y) {
  item_.hostClicked(QPoint(x, y));
}

void StatusNotifierItemAdaptor::SecondaryActivate(int x, int y) {
  item_.hostClicked(QPoint(x, y));
}

void StatusNotifierItemAdaptor::ContextMenu(int x, int y) {
  item_.hostClicked(QPoint(x, y));
}

void StatusNotifierItemAdaptor::Scroll(int, const QString&) {}

}  // namespace brimly
