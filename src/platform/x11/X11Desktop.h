#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace brimly {

class X11Connection;

// What the panel needs to tell the X11 desktop: the window-manager hints that make a window an
// overlay. (Whether a compositing manager runs is followed by X11CompositorWatch.)
class X11Desktop {
 public:
  // An empty display name means $DISPLAY.
  explicit X11Desktop(const std::string& displayName = {});
  ~X11Desktop();

  bool isConnected() const;
  // Marks a created but not yet mapped window as a dock: kept above normal windows, left out of
  // task bars and pagers, shown on every virtual desktop. Returns false when the server refused
  // any of it. The hints are in place on the server when this returns, so a map request sent
  // afterwards on another connection sees them.
  bool markAsOverlay(std::uint32_t window) const;

 private:
  std::unique_ptr<X11Connection> connection_;
};

}  // namespace brimly
