#include "platform/x11/X11Desktop.h"

#include <xcb/xcb.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "platform/x11/X11Connection.h"

namespace brimly {

X11Desktop::X11Desktop(const std::string& displayName)
    : connection_(std::make_unique<X11Connection>(displayName)) {}

X11Desktop::~X11Desktop() = default;

bool X11Desktop::isConnected() const {
  return connection_->isValid();
}

bool X11Desktop::markAsOverlay(std::uint32_t window) const {
  if (!connection_->isValid() || window == 0) return false;
  const xcb_atom_t windowType = connection_->atom("_NET_WM_WINDOW_TYPE");
  const xcb_atom_t dock = connection_->atom("_NET_WM_WINDOW_TYPE_DOCK");
  const xcb_atom_t state = connection_->atom("_NET_WM_STATE");
  const xcb_atom_t desktop = connection_->atom("_NET_WM_DESKTOP");
  const std::vector<xcb_atom_t> states = {connection_->atom("_NET_WM_STATE_ABOVE"),
                                          connection_->atom("_NET_WM_STATE_STICKY"),
                                          connection_->atom("_NET_WM_STATE_SKIP_TASKBAR"),
                                          connection_->atom("_NET_WM_STATE_SKIP_PAGER")};
  const std::uint32_t allDesktops = 0xFFFFFFFF;

  xcb_connection_t* c = connection_->get();
  const xcb_void_cookie_t cookies[] = {
      xcb_change_property_checked(c, XCB_PROP_MODE_REPLACE, window, windowType, XCB_ATOM_ATOM, 32,
                                  1, &dock),
      xcb_change_property_checked(c, XCB_PROP_MODE_REPLACE, window, state, XCB_ATOM_ATOM, 32,
                                  static_cast<std::uint32_t>(states.size()), states.data()),
      xcb_change_property_checked(c, XCB_PROP_MODE_REPLACE, window, desktop, XCB_ATOM_CARDINAL, 32,
                                  1, &allDesktops),
  };
  // Checking each request waits for the server to have processed it.
  bool accepted = true;
  for (const xcb_void_cookie_t& cookie : cookies) {
    if (xcb_generic_error_t* error = xcb_request_check(c, cookie)) {
      accepted = false;
      std::free(error);
    }
  }
  return accepted;
}

}  // namespace brimly
