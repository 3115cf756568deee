#pragma once

#include <functional>
#include <optional>

#include "core/Geometry.h"

namespace brimly {

// Watches pointer movement anywhere on the desktop. `onMove` is called on the main thread after
// movement (its position is not passed: the listener asks `location` when it evaluates), and
// never while the pointer is still.
class PointerPort {
 public:
  virtual ~PointerPort() = default;
  // Starts watching; false when the desktop offers no way to watch the pointer (the listener then
  // gets no calls). Starting twice replaces the listener.
  virtual bool startWatching(std::function<void()> onMove) = 0;
  // Stops watching; no call of `onMove` follows.
  virtual void stopWatching() = 0;
  // The pointer's position now, in global bottom-left-origin points; nothing when unknown.
  virtual std::optional<Point> location() const = 0;
};

}  // namespace brimly
