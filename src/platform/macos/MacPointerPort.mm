#include "platform/macos/MacPointerPort.h"

#import <AppKit/AppKit.h>
#include <dispatch/dispatch.h>

namespace brimly {
namespace {

// Mouse moved and the left, right and other drags.
constexpr NSEventMask kMovementMask = NSEventMaskMouseMoved | NSEventMaskLeftMouseDragged |
                                      NSEventMaskRightMouseDragged | NSEventMaskOtherMouseDragged;
static_assert(kMovementMask == 0x80000E0);

using Listener = std::function<void()>;

// What the monitors' handlers reach: cleared when watching stops, so that a move already queued
// for the main thread calls nobody.
struct ListenerSlot {
  std::shared_ptr<const Listener> listener;
};

// The event itself is not used: the listener asks for the position when it runs, on the main
// queue after the event has been handled.
void postMove(std::shared_ptr<ListenerSlot> slot) {
  dispatch_async(dispatch_get_main_queue(), ^{
    const std::shared_ptr<const Listener> listener = slot->listener;
    if (listener) (*listener)();
  });
}

class MacPointerPort final : public PointerPort {
 public:
  ~MacPointerPort() override { stopWatching(); }

  bool startWatching(std::function<void()> onMove) override {
    stopWatching();
    slot_ = std::make_shared<ListenerSlot>();
    slot_->listener = std::make_shared<const Listener>(std::move(onMove));
    const std::shared_ptr<ListenerSlot> slot = slot_;
    void (^onGlobalEvent)(NSEvent*) = ^(NSEvent*) {
      postMove(slot);
    };
    NSEvent* (^onLocalEvent)(NSEvent*) = ^NSEvent*(NSEvent* event) {
      postMove(slot);
      return event;  // seen, never consumed
    };
    globalMonitor_ = [NSEvent addGlobalMonitorForEventsMatchingMask:kMovementMask
                                                            handler:onGlobalEvent];
    localMonitor_ = [NSEvent addLocalMonitorForEventsMatchingMask:kMovementMask
                                                          handler:onLocalEvent];
    return globalMonitor_ != nil || localMonitor_ != nil;
  }

  void stopWatching() override {
    if (globalMonitor_ != nil) [NSEvent removeMonitor:globalMonitor_];
    if (localMonitor_ != nil) [NSEvent removeMonitor:localMonitor_];
    globalMonitor_ = nil;
    localMonitor_ = nil;
    if (slot_) slot_->listener.reset();
    slot_.reset();
  }

  std::optional<Point> location() const override {
    const NSPoint point = NSEvent.mouseLocation;
    return Point{point.x, point.y};
  }

 private:
  std::shared_ptr<ListenerSlot> slot_;
  id globalMonitor_ = nil;
  id localMonitor_ = nil;
};

}  // namespace

std::unique_ptr<PointerPort> makeMacPointerPort() {
  return std::make_unique<MacPointerPort>();
}

}  // namespace brimly
