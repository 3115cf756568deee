#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "platform/HoverZonePort.h"

namespace brimly::testing {

// A desktop that tells only whether the pointer is over the panel's zone: the test says when the
// pointer enters or leaves, and reads back every zone the tracker asked for.
class FakeHoverZonePort final : public HoverZonePort {
 public:
  bool watchingAvailable = true;
  int startCalls = 0;
  int stopCalls = 0;
  std::vector<Zone> zones;  // every zone set, in order

  bool startWatching(std::function<void(bool)> onChange) override {
    ++startCalls;
    if (!watchingAvailable) return false;
    onChange_ = std::move(onChange);
    return true;
  }
  void stopWatching() override {
    ++stopCalls;
    onChange_ = nullptr;
  }
  void setZone(Zone zone) override { zones.push_back(zone); }

  bool isWatching() const { return static_cast<bool>(onChange_); }
  // What the desktop reports when the pointer crosses the zone's edge.
  void enter() { report(true); }
  void leave() { report(false); }

 private:
  void report(bool inside) {
    if (onChange_) onChange_(inside);
  }

  std::function<void(bool)> onChange_;
};

}  // namespace brimly::testing
