#include "X11TestRequests.h"

#include <gtest/gtest.h>
#include <xcb/shape.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <cstdlib>

#include "platform/x11/X11Connection.h"

namespace brimly::testing {

void movePointer(const X11Connection& connection, int x, int y) {
  ASSERT_TRUE(connection.isValid());
  xcb_connection_t* c = connection.get();
  xcb_generic_error_t* error =
      xcb_request_check(c, xcb_test_fake_input_checked(
                               c, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, connection.rootWindow(),
                               static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0));
  ASSERT_EQ(error, nullptr);
}

std::vector<QRect> inputShape(const X11Connection& connection, std::uint32_t window) {
  xcb_connection_t* c = connection.get();
  xcb_shape_get_rectangles_reply_t* reply = xcb_shape_get_rectangles_reply(
      c, xcb_shape_get_rectangles(c, window, XCB_SHAPE_SK_INPUT), nullptr);
  std::vector<QRect> rectangles;
  if (reply == nullptr) return rectangles;
  const xcb_rectangle_t* r = xcb_shape_get_rectangles_rectangles(reply);
  for (int i = 0; i < xcb_shape_get_rectangles_rectangles_length(reply); ++i) {
    rectangles.emplace_back(r[i].x, r[i].y, r[i].width, r[i].height);
  }
  std::free(reply);
  return rectangles;
}

bool overridesRedirect(const X11Connection& connection, std::uint32_t window) {
  xcb_connection_t* c = connection.get();
  xcb_get_window_attributes_reply_t* reply =
      xcb_get_window_attributes_reply(c, xcb_get_window_attributes(c, window), nullptr);
  const bool result = reply != nullptr && reply->override_redirect != 0;
  std::free(reply);
  return result;
}

}  // namespace brimly::testing
