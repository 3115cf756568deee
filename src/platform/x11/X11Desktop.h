#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace brimly {

class X11Connection;

// What the panel needs to know about, and tell, the X11 desktop: whether a compositing manager
// runs (without one, transparent pixels show black and the window must be cut to shape instead),
// and the window-manager hints that make a window an overlay.
class X11Desktop {
 public:
  // An empty display name means $DISPLAY.
  explicit X11Desktop(const std::string& displayName = {});
  ~X11Desktop();

  bool isConnected() const;
  // True when some client owns the compositing-manager selection of the default screen.
  bool hasCompositingManager() const;
  // Marks a created but not yet mapped window as a dock: kept above normal windows, left out of
  // task bars and pagers, shown on every virtual desktop. Returns false when the server refused
  // any of it. The hints are in place on the server when this returns, so a map request sent
  // afterwards on another connection sees them.
  bool markAsOverlay(std::uint32_t window) const;

 private:
  std::unique_ptr<X11Connection> connection_;
};

}  // namespace brimly
