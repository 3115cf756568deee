#pragma once

#include <cstdint>
#include <string>

struct xcb_connection_t;
struct xcb_screen_t;

namespace brimly {

// One connection to an X server, closed when the object goes. Opening never throws: a display
// that cannot be reached leaves the connection invalid.
class X11Connection {
 public:
  // An empty name means the display in $DISPLAY.
  explicit X11Connection(const std::string& displayName);
  ~X11Connection();
  X11Connection(const X11Connection&) = delete;
  X11Connection& operator=(const X11Connection&) = delete;

  // False when the display could not be opened or the connection has broken since.
  bool isValid() const;
  xcb_connection_t* get() const { return connection_; }
  // The default screen's root window and its number; 0 when invalid.
  std::uint32_t rootWindow() const;
  int screenNumber() const { return screenNumber_; }
  // The interned atom of that name, 0 when the server refuses it.
  std::uint32_t atom(const char* name) const;

 private:
  xcb_connection_t* connection_ = nullptr;
  xcb_screen_t* screen_ = nullptr;
  int screenNumber_ = 0;
};

}  // namespace brimly
