#include "desktop/xwayland/XWaylandZoneRefresh.h"

#include <QEvent>
#include <QWidget>
#include <utility>

namespace brimly {

XWaylandZoneRefresh::XWaylandZoneRefresh(QWidget& window, std::function<void()> announce,
                                         int settleDelayMs, int carryDelayMs)
    : window_(window),
      announce_(std::move(announce)),
      settleDelayMs_(settleDelayMs),
      carryDelayMs_(carryDelayMs) {
  settle_.setSingleShot(true);
  connect(&settle_, &QTimer::timeout, this, &XWaylandZoneRefresh::settle);
  window_.installEventFilter(this);
}

void XWaylandZoneRefresh::setEnabled(bool enabled) {
  enabled_ = enabled;
  if (!enabled_) settle_.stop();
}

bool XWaylandZoneRefresh::eventFilter(QObject* watched, QEvent* event) {
  // Qt paints a top-level widget and puts the frame on screen when it takes an update request.
  if (watched == &window_ && event->type() == QEvent::UpdateRequest && enabled_ && !carrying_) {
    announce_();
    announcedAfterFrames_ = false;
    settle_.start(settleDelayMs_);
  }
  return false;
}

void XWaylandZoneRefresh::settle() {
  if (!announcedAfterFrames_) {
    announce_();
    announcedAfterFrames_ = true;
    settle_.start(carryDelayMs_);
    return;
  }
  carrying_ = true;
  window_.repaint();
  carrying_ = false;
  announcedAfterFrames_ = false;
}

}  // namespace brimly
