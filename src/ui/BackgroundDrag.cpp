#include "ui/BackgroundDrag.h"

#include <QMouseEvent>
#include <QWidget>
#include <utility>

namespace brimly {

BackgroundDrag::BackgroundDrag(QWidget& window, SystemMove startSystemMove)
    : QObject(&window), window_(window), startSystemMove_(std::move(startSystemMove)) {
  window_.installEventFilter(this);
}

bool BackgroundDrag::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &window_) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress: {
      auto* press = static_cast<QMouseEvent*>(event);
      if (press->button() != Qt::LeftButton) return false;
      if (!startSystemMove_ || !startSystemMove_(window_)) {
        grip_ = press->globalPosition().toPoint() - window_.pos();
      }
      return true;
    }
    case QEvent::MouseMove: {
      if (!grip_) return false;
      window_.move(static_cast<QMouseEvent*>(event)->globalPosition().toPoint() - *grip_);
      return true;
    }
    case QEvent::MouseButtonRelease: {
      if (!grip_ || static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) return false;
      grip_.reset();
      return true;
    }
    default:
      return false;
  }
}

}  // namespace brimly
