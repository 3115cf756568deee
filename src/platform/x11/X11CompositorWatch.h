#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

class QSocketNotifier;

namespace brimly {

class X11Connection;

// Follows whether a compositing manager runs on the default screen: one does while some client
// owns the selection _NET_WM_CM_S<screen>. The X server reports every change of that selection's
// owner through XFixes (a manager taking it, its window going, its client closing), on a
// connection of this object's own watched by the Qt event loop; nothing is asked or woken in
// between. Where the server has no XFixes, the answer is the one last asked for with refresh().
class X11CompositorWatch {
 public:
  // An empty display name means $DISPLAY.
  explicit X11CompositorWatch(std::string displayName = {});
  ~X11CompositorWatch();
  X11CompositorWatch(const X11CompositorWatch&) = delete;
  X11CompositorWatch& operator=(const X11CompositorWatch&) = delete;

  // Starts following. `onChange` runs on the main thread with the new answer each time it
  // changes. False when the display cannot be reached or has no XFixes; isPresent() is then
  // known only through refresh().
  bool start(std::function<void(bool present)> onChange);
  bool isFollowing() const { return notifier_ != nullptr; }

  // Whether a compositing manager ran when last seen.
  bool isPresent() const { return present_; }
  // Asks the server now, and tells the listener when the answer changed.
  bool refresh();

 private:
  void readEvents();
  void settle(bool present);

  std::string displayName_;
  std::unique_ptr<X11Connection> connection_;
  std::unique_ptr<QSocketNotifier> notifier_;
  std::function<void(bool)> onChange_;
  std::uint32_t selection_ = 0;
  std::uint8_t firstXFixesEvent_ = 0;
  bool present_ = false;
};

}  // namespace brimly
