#pragma once

#include <QObject>
#include <map>

#include "platform/OutsideClickMonitorPort.h"

namespace brimly {

// Outside clicks where the desktop shows a program no click outside its own windows (Wayland,
// and X11 programs under XWayland, which see nothing of the Wayland windows around them): the
// control card is a window of its own that takes the keyboard when it shows, and a click anywhere
// else moves the keyboard to another program. The moment Brimly loses the keyboard stands for
// that click, whose place is not known. Moving the keyboard between Brimly's own windows (the
// settings window coming up beside the card) is no such click.
class KeyboardLossMonitor final : public QObject, public OutsideClickMonitorPort {
 public:
  KeyboardLossMonitor();

  std::optional<Token> install(std::function<void(std::optional<Point>)> onClick) override;
  void remove(Token token) override;

 private:
  void keyboardLost();

  std::map<Token, std::function<void(std::optional<Point>)>> monitors_;
  Token nextToken_ = 1;
};

}  // namespace brimly
