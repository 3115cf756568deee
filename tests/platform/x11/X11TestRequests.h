#pragma once

#include <QRect>
#include <cstdint>
#include <vector>

namespace brimly {

class X11Connection;

namespace testing {

// What the X11 tests ask of the server as a client of their own.

// Moves the pointer the way a real device does: through the XTEST extension, which makes the
// server produce raw motion and crossing events (a plain warp would not). Fails the test when
// the server refuses.
void movePointer(const X11Connection& connection, int x, int y);
// The window's input shape as the server keeps it, in the window's pixels.
std::vector<QRect> inputShape(const X11Connection& connection, std::uint32_t window);
// Whether the window is out of the window manager's hands.
bool overridesRedirect(const X11Connection& connection, std::uint32_t window);

}  // namespace testing
}  // namespace brimly
