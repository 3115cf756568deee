#include "platform/x11/X11Desktop.h"

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <vector>

#include "XvfbServer.h"
#include "platform/x11/X11Connection.h"

namespace brimly {
namespace {

using testing::XvfbServer;

std::vector<std::uint32_t> readCardinals(const X11Connection& connection, xcb_window_t window,
                                         const char* property) {
  xcb_connection_t* c = connection.get();
  xcb_get_property_reply_t* reply = xcb_get_property_reply(
      c,
      xcb_get_property(c, 0, window, connection.atom(property), XCB_GET_PROPERTY_TYPE_ANY, 0, 64),
      nullptr);
  std::vector<std::uint32_t> values;
  if (reply != nullptr) {
    const auto* data = static_cast<const std::uint32_t*>(xcb_get_property_value(reply));
    values.assign(data, data + xcb_get_property_value_length(reply) / 4);
    std::free(reply);
  }
  return values;
}

xcb_window_t createWindow(const X11Connection& connection) {
  xcb_connection_t* c = connection.get();
  const xcb_window_t window = xcb_generate_id(c);
  xcb_create_window(c, XCB_COPY_FROM_PARENT, window, connection.rootWindow(), 0, 0, 100, 50, 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
  xcb_flush(c);
  return window;
}

class X11DesktopTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!server_.isRunning()) GTEST_SKIP() << "Xvfb is not installed or did not start";
  }
  XvfbServer server_{800, 600};
};

TEST(X11DesktopEdge, UnreachableDisplayTakesNoHints) {
  X11Desktop desktop(":4711");
  EXPECT_FALSE(desktop.isConnected());
  EXPECT_FALSE(desktop.markAsOverlay(42));
}

TEST_F(X11DesktopTest, OverlayIsADockOnEveryDesktopKeptAboveAndOutOfTaskBars) {
  X11Connection client(server_.display());
  ASSERT_TRUE(client.isValid());
  const xcb_window_t window = createWindow(client);

  X11Desktop desktop(server_.display());
  ASSERT_TRUE(desktop.markAsOverlay(window));

  EXPECT_EQ(readCardinals(client, window, "_NET_WM_WINDOW_TYPE"),
            (std::vector<std::uint32_t>{client.atom("_NET_WM_WINDOW_TYPE_DOCK")}));
  EXPECT_EQ(
      readCardinals(client, window, "_NET_WM_STATE"),
      (std::vector<std::uint32_t>{
          client.atom("_NET_WM_STATE_ABOVE"), client.atom("_NET_WM_STATE_STICKY"),
          client.atom("_NET_WM_STATE_SKIP_TASKBAR"), client.atom("_NET_WM_STATE_SKIP_PAGER")}));
  EXPECT_EQ(readCardinals(client, window, "_NET_WM_DESKTOP"),
            (std::vector<std::uint32_t>{0xFFFFFFFFu}));
}

TEST_F(X11DesktopTest, UnknownWindowIsRefused) {
  X11Desktop desktop(server_.display());
  EXPECT_FALSE(desktop.markAsOverlay(0x7ffffff));
}

}  // namespace
}  // namespace brimly
