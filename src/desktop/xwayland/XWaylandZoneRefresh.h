#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

class QWidget;

namespace brimly {

// Keeps GNOME's compositor (mutter 43) holding to an XWayland window's input shape. Mutter takes
// the shape into account only at the first frame the window shows after mutter has seen the shape
// change; every frame after that gives the pointer the whole window again. So right before each
// frame of the window the shape is announced anew, in a form mutter has not seen last; and since
// mutter may take a frame before it has read the announcement that came just ahead of it, once
// the frames stop the shape is announced once more and, a moment later, a frame that announces
// nothing carries it.
class XWaylandZoneRefresh final : public QObject {
 public:
  // `announce` sets the shape anew, differing from the last one set. `settleDelayMs`: how long
  // after the last frame the shape is announced once more; `carryDelayMs`: how long after that the
  // frame that carries it comes.
  XWaylandZoneRefresh(QWidget& window, std::function<void()> announce, int settleDelayMs = 100,
                      int carryDelayMs = 50);

  // Off while the shape is the whole window, which every frame gives it anyway.
  void setEnabled(bool enabled);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void settle();

  QWidget& window_;
  std::function<void()> announce_;
  int settleDelayMs_;
  int carryDelayMs_;
  QTimer settle_;
  bool enabled_ = true;
  bool announcedAfterFrames_ = false;
  bool carrying_ = false;
};

}  // namespace brimly
