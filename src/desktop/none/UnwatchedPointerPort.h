#pragma once

#include "platform/PointerPort.h"

namespace brimly {

// The pointer port of a desktop that does not let programs follow the pointer (a native Wayland
// session): nothing is watched and no position is known, so the panel opens only when pinned.
class UnwatchedPointerPort final : public PointerPort {
 public:
  bool startWatching(std::function<void()>) override { return false; }
  void stopWatching() override {}
  std::optional<Point> location() const override { return std::nullopt; }
};

}  // namespace brimly
