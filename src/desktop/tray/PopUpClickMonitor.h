#pragma once

#include "platform/OutsideClickMonitorPort.h"

namespace brimly {

// Outside clicks on X11: the card is a pop-up that holds the pointer while it is shown, so it
// sees every press outside itself and hands it to the card's rules directly. Nothing else needs
// to watch; a monitor here is only a token, and its callback is never run.
class PopUpClickMonitor final : public OutsideClickMonitorPort {
 public:
  std::optional<Token> install(std::function<void(std::optional<Point>)>) override {
    return nextToken_++;
  }
  void remove(Token) override {}

 private:
  Token nextToken_ = 1;
};

}  // namespace brimly
