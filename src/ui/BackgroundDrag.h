#pragma once

#include <QObject>
#include <QPoint>
#include <functional>
#include <optional>

class QWidget;

namespace brimly {

// Lets a top-level window be moved by dragging its background: a left press on the window that
// none of its controls takes (Qt hands a press a widget ignores on to its parent, up to the
// window). The move is offered to the window system first (`startSystemMove`, which answers
// whether it took it), so that the window moves as it would by its title bar; where the system
// declines (no window manager, the offscreen platform), the window follows the pointer itself
// until the button is released. It is made as the window's child and lives as long as it.
class BackgroundDrag : public QObject {
 public:
  using SystemMove = std::function<bool(QWidget& window)>;

  BackgroundDrag(QWidget& window, SystemMove startSystemMove);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& window_;
  SystemMove startSystemMove_;
  // Where the pointer holds the window (the pointer's position less the window's) while the
  // window follows it itself.
  std::optional<QPoint> grip_;
};

}  // namespace brimly
