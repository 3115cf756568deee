#pragma once

#include "core/Geometry.h"

namespace brimly {

// What the control card's rules need of the card's window: the window itself is a view.
class ControlCardWindow {
 public:
  virtual ~ControlCardWindow() = default;
  virtual bool isVisible() const = 0;
  // Lays the card out and answers the size it needs (the card with its shadow's margin).
  virtual Size fittingSize() = 0;
  // Gives the window `size` with its bottom-left corner at `origin` (global bottom-left-origin
  // points), activates the application, and makes the card key and frontmost.
  virtual void showAt(Point origin, Size size) = 0;
  // Orders the window out.
  virtual void close() = 0;
};

}  // namespace brimly
