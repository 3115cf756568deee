#include "platform/x11/X11Connection.h"

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>

namespace brimly {

X11Connection::X11Connection(const std::string& displayName) {
  connection_ = xcb_connect(displayName.empty() ? nullptr : displayName.c_str(), &screenNumber_);
  if (xcb_connection_has_error(connection_) != 0) return;
  xcb_screen_iterator_t it = xcb_setup_roots_iterator(xcb_get_setup(connection_));
  for (int i = 0; it.rem > 0; ++i, xcb_screen_next(&it)) {
    if (i == screenNumber_) {
      screen_ = it.data;
      break;
    }
  }
}

X11Connection::~X11Connection() {
  // xcb_connect always returns an object, also a failed one, and it must be released.
  if (connection_ != nullptr) xcb_disconnect(connection_);
}

bool X11Connection::isValid() const {
  return connection_ != nullptr && xcb_connection_has_error(connection_) == 0 && screen_ != nullptr;
}

std::uint32_t X11Connection::rootWindow() const {
  return isValid() ? screen_->root : 0;
}

std::uint32_t X11Connection::atom(const char* name) const {
  if (!isValid()) return 0;
  xcb_intern_atom_cookie_t cookie =
      xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
  xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(connection_, cookie, nullptr);
  if (reply == nullptr) return 0;
  const std::uint32_t result = reply->atom;
  std::free(reply);
  return result;
}

}  // namespace brimly
