#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/PointerPort.h"

class QSocketNotifier;

namespace brimly {

class X11Connection;

// Follows the pointer anywhere on an X11 desktop through XInput 2 raw motion events, which the
// server sends to the root window for every device report, over any window, and never while the
// pointer is still. The events arrive on a connection of this object's own, watched by the Qt
// event loop, so the application's own X traffic is not disturbed. The position itself is asked
// for on a second connection when the listener wants it, and handed to a converter that knows how
// the desktop lays its screens out in bottom-left points.
class X11PointerPort final : public PointerPort {
 public:
  enum class Failure { none, noDisplay, noXInput2 };

  // Turns the server's pointer position (root-window pixels, origin at the top left) into global
  // bottom-left-origin points; nothing when the position lies nowhere the desktop knows.
  using ToDesktopPoint = std::function<std::optional<Point>(Point rootPixels)>;

  // An empty display name means $DISPLAY.
  explicit X11PointerPort(ToDesktopPoint toDesktopPoint, std::string displayName = {});
  ~X11PointerPort() override;

  bool startWatching(std::function<void()> onMove) override;
  void stopWatching() override;
  std::optional<Point> location() const override;

  // Why the last `startWatching` returned false.
  Failure lastFailure() const { return failure_; }

 private:
  // Takes every queued event; tells the listener once when any was a move and `notify` is set.
  void readEvents(bool notify);
  // Drops the notifier, also from inside its own signal.
  void releaseNotifier();

  ToDesktopPoint toDesktopPoint_;
  std::string displayName_;
  std::function<void()> onMove_;
  std::unique_ptr<X11Connection> events_;
  std::unique_ptr<QSocketNotifier> notifier_;
  std::uint8_t xinputOpcode_ = 0;
  Failure failure_ = Failure::none;
  bool dispatching_ = false;
  mutable std::unique_ptr<X11Connection> queries_;
};

}  // namespace brimly
