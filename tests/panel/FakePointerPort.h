#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "platform/PointerPort.h"

namespace brimly::testing {

// A pointer the test moves by hand. `moveTo` delivers the movement call like the desktop would.
class FakePointerPort final : public PointerPort {
 public:
  std::optional<Point> position;
  bool watchingAvailable = true;
  int startCalls = 0;
  int stopCalls = 0;

  bool startWatching(std::function<void()> onMove) override {
    ++startCalls;
    if (!watchingAvailable) return false;
    onMove_ = std::move(onMove);
    return true;
  }
  void stopWatching() override {
    ++stopCalls;
    onMove_ = nullptr;
  }
  std::optional<Point> location() const override { return position; }

  bool isWatching() const { return static_cast<bool>(onMove_); }
  // Moves the pointer and reports the movement to the listener, if any.
  void moveTo(Point p) {
    position = p;
    if (onMove_) onMove_();
  }

 private:
  std::function<void()> onMove_;
};

}  // namespace brimly::testing
