#include "platform/macos/MacOutsideClickMonitor.h"

#import <AppKit/AppKit.h>
#include <dispatch/dispatch.h>

#include <map>
#include <utility>

namespace brimly {
namespace {

// Left and right mouse-down.
constexpr NSEventMask kClickMask = NSEventMaskLeftMouseDown | NSEventMaskRightMouseDown;
static_assert(kClickMask == 10);

using ClickHandler = std::function<void(std::optional<Point>)>;

// What one monitor's handler reaches: emptied when the monitor is removed (or the port goes), so
// that a click already queued for the main thread calls nobody.
struct HandlerSlot {
  std::shared_ptr<const ClickHandler> handler;
};

// The handler may run on any thread: the click is passed on from the main queue, with the pointer
// where it is then.
void postClick(std::shared_ptr<HandlerSlot> slot) {
  dispatch_async(dispatch_get_main_queue(), ^{
    // A copy, so that the handler survives removing its own monitor while it runs.
    const std::shared_ptr<const ClickHandler> handler = slot->handler;
    if (!handler) return;
    const NSPoint pointer = NSEvent.mouseLocation;
    (*handler)(Point{pointer.x, pointer.y});
  });
}

class MacOutsideClickMonitor final : public OutsideClickMonitorPort {
 public:
  ~MacOutsideClickMonitor() override {
    while (!monitors_.empty())
      remove(monitors_.begin()->first);
  }

  std::optional<Token> install(std::function<void(std::optional<Point> pointer)> onClick) override {
    @autoreleasepool {
      auto slot = std::make_shared<HandlerSlot>();
      slot->handler = std::make_shared<const ClickHandler>(std::move(onClick));
      void (^onEvent)(NSEvent*) = ^(NSEvent*) {
        postClick(slot);
      };
      id monitor = [NSEvent addGlobalMonitorForEventsMatchingMask:kClickMask handler:onEvent];
      if (monitor == nil) return std::nullopt;
      const Token token = nextToken_++;
      monitors_.emplace(token, Monitor{monitor, std::move(slot)});
      return token;
    }
  }

  void remove(Token token) override {
    const auto found = monitors_.find(token);
    if (found == monitors_.end()) return;
    @autoreleasepool {
      // The token goes back to AppKit exactly once.
      [NSEvent removeMonitor:found->second.monitor];
    }
    found->second.slot->handler.reset();
    monitors_.erase(found);
  }

 private:
  struct Monitor {
    id monitor;
    std::shared_ptr<HandlerSlot> slot;
  };

  std::map<Token, Monitor> monitors_;
  Token nextToken_ = 1;
};

}  // namespace

std::unique_ptr<OutsideClickMonitorPort> makeMacOutsideClickMonitor() {
  return std::make_unique<MacOutsideClickMonitor>();
}

}  // namespace brimly
