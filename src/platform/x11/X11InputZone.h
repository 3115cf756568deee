#pragma once

#include <QRect>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class QSocketNotifier;

namespace brimly {

class X11Connection;

// The part of one X window that takes the pointer (its input shape), and the pointer's crossings
// into and out of it (X Enter and Leave), seen from a connection of this object's own. Where a
// desktop shows a program the pointer only over the program's own windows (XWayland), these are
// still shown: the window's input shape becomes the place where the pointer is watched. The
// pointer then goes to that window instead of what lies below, so the part taking input also
// takes the clicks that land in it; the rest of the window lets them through.
//
// The window belongs to another connection (the application's). Every request is in place on the
// server when the call that sends it returns, so a map request sent afterwards on that connection
// sees it: a window first mapped with its full input region under a pointer that XWayland last
// saw there gets an Enter at once, and the zone must never be mapped that way.
class X11InputZone {
 public:
  enum class Failure { none, noDisplay, noShape };

  // `window` is an X window of the display named `displayName` (empty: $DISPLAY).
  explicit X11InputZone(std::uint32_t window, std::string displayName = {});
  ~X11InputZone();
  X11InputZone(const X11InputZone&) = delete;
  X11InputZone& operator=(const X11InputZone&) = delete;

  // Why the zone cannot work: the display does not answer, or has no SHAPE extension 1.1 (the
  // first with input shapes). Nothing below works then.
  Failure failure() const { return failure_; }

  // Takes the window, created and not yet mapped, out of the window manager's hands
  // (override-redirect): it stays where it is put, above every managed window. Under XWayland the
  // compositor stacks such windows above its own top bar and above full-screen windows too.
  bool bypassWindowManager();
  // The part of the window that takes the pointer: `rectangles`, in the window's pixels from its
  // top-left corner. An empty list takes none at all.
  bool setInputRegion(const std::vector<QRect>& rectangles);

  // Starts telling `onCrossing(true)` when the pointer enters the input region and
  // `onCrossing(false)` when it leaves, on the main thread; moves within the window or between it
  // and windows inside it say nothing. Several crossings that arrive together are told as the
  // last of them. False when the window cannot be watched. Starting again replaces the listener.
  bool startWatching(std::function<void(bool inside)> onCrossing);
  // Stops telling; no call of `onCrossing` follows.
  void stopWatching();

 private:
  // Takes every queued event and tells the listener where the last crossing left the pointer.
  void readEvents();
  // After waiting for a reply while watching: events read along with it are taken later.
  void readQueuedEventsSoon();
  void releaseNotifier();

  std::uint32_t window_;
  std::unique_ptr<X11Connection> connection_;
  Failure failure_ = Failure::none;
  std::unique_ptr<QSocketNotifier> notifier_;
  std::function<void(bool)> onCrossing_;
};

}  // namespace brimly
