#include "platform/x11/X11InputZone.h"

#include <xcb/shape.h>
#include <xcb/xcb.h>

#include <QSocketNotifier>
#include <QTimer>
#include <cstdlib>
#include <optional>

#include "platform/x11/X11Connection.h"

namespace brimly {
namespace {

// Input shapes came with SHAPE 1.1.
bool hasInputShapes(xcb_connection_t* c) {
  const xcb_query_extension_reply_t* extension = xcb_get_extension_data(c, &xcb_shape_id);
  if (extension == nullptr || extension->present == 0) return false;
  xcb_shape_query_version_reply_t* version =
      xcb_shape_query_version_reply(c, xcb_shape_query_version(c), nullptr);
  if (version == nullptr) return false;
  const bool inputShapes =
      version->major_version > 1 || (version->major_version == 1 && version->minor_version >= 1);
  std::free(version);
  return inputShapes;
}

// Waits for the server to have handled the request; false when it refused it.
bool accepted(xcb_connection_t* c, xcb_void_cookie_t cookie) {
  xcb_generic_error_t* error = xcb_request_check(c, cookie);
  if (error == nullptr) return true;
  std::free(error);
  return false;
}

}  // namespace

X11InputZone::X11InputZone(std::uint32_t window, std::string displayName)
    : window_(window), connection_(std::make_unique<X11Connection>(displayName)) {
  if (!connection_->isValid()) {
    failure_ = Failure::noDisplay;
  } else if (!hasInputShapes(connection_->get())) {
    failure_ = Failure::noShape;
  }
}

X11InputZone::~X11InputZone() {
  stopWatching();
}

bool X11InputZone::bypassWindowManager() {
  if (failure_ != Failure::none || !connection_->isValid()) return false;
  const std::uint32_t overrideRedirect = 1;
  xcb_connection_t* c = connection_->get();
  return accepted(c, xcb_change_window_attributes_checked(c, window_, XCB_CW_OVERRIDE_REDIRECT,
                                                          &overrideRedirect));
}

bool X11InputZone::setInputRegion(const std::vector<QRect>& rectangles) {
  if (failure_ != Failure::none || !connection_->isValid()) return false;
  std::vector<xcb_rectangle_t> region;
  for (const QRect& r : rectangles) {
    if (r.isEmpty()) continue;
    region.push_back({static_cast<std::int16_t>(r.x()), static_cast<std::int16_t>(r.y()),
                      static_cast<std::uint16_t>(r.width()),
                      static_cast<std::uint16_t>(r.height())});
  }
  xcb_connection_t* c = connection_->get();
  const bool done =
      accepted(c, xcb_shape_rectangles_checked(
                      c, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED, window_,
                      0, 0, static_cast<std::uint32_t>(region.size()), region.data()));
  // A region that shrinks away from under the pointer brings a Leave at once.
  readQueuedEventsSoon();
  return done;
}

bool X11InputZone::startWatching(std::function<void(bool inside)> onCrossing) {
  if (failure_ != Failure::none || !connection_->isValid()) return false;
  xcb_connection_t* c = connection_->get();
  // Each client selects its own events on a window: the application's own selection is untouched.
  const std::uint32_t crossings = XCB_EVENT_MASK_ENTER_WINDOW | XCB_EVENT_MASK_LEAVE_WINDOW;
  if (!accepted(c,
                xcb_change_window_attributes_checked(c, window_, XCB_CW_EVENT_MASK, &crossings))) {
    return false;
  }
  onCrossing_ = std::move(onCrossing);
  if (!notifier_) {
    notifier_ =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(c), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { readEvents(); });
  }
  readQueuedEventsSoon();
  return true;
}

void X11InputZone::stopWatching() {
  onCrossing_ = nullptr;
  releaseNotifier();
  if (failure_ != Failure::none || !connection_->isValid()) return;
  // The window may be gone already; nothing is waited for.
  const std::uint32_t none = XCB_EVENT_MASK_NO_EVENT;
  xcb_change_window_attributes(connection_->get(), window_, XCB_CW_EVENT_MASK, &none);
  xcb_flush(connection_->get());
}

void X11InputZone::readQueuedEventsSoon() {
  // Waiting for a reply reads the events that came before it off the socket, so the notifier
  // will not wake for them: they are taken from the event loop, once the caller has returned.
  if (notifier_) QTimer::singleShot(0, notifier_.get(), [this] { readEvents(); });
}

void X11InputZone::releaseNotifier() {
  if (!notifier_) return;
  // Always later: the notifier may be emitting the signal that got us here.
  notifier_->setEnabled(false);
  notifier_.release()->deleteLater();
}

void X11InputZone::readEvents() {
  xcb_connection_t* c = connection_->get();
  std::optional<bool> inside;
  while (xcb_generic_event_t* event = xcb_poll_for_event(c)) {
    const std::uint8_t type = event->response_type & 0x7f;
    if (type == XCB_ENTER_NOTIFY || type == XCB_LEAVE_NOTIFY) {
      // Enter and Leave share one layout.
      const auto* crossing = reinterpret_cast<const xcb_enter_notify_event_t*>(event);
      // From or into a window inside this one: the pointer stays within the window.
      if (crossing->event == window_ && crossing->detail != XCB_NOTIFY_DETAIL_INFERIOR) {
        inside = type == XCB_ENTER_NOTIFY;
      }
    }
    std::free(event);
  }
  if (xcb_connection_has_error(c) != 0) {
    // The server went away: a closed socket stays readable, so stop listening to it.
    releaseNotifier();
    return;
  }
  if (inside && onCrossing_) {
    // A copy: the listener may stop or restart the watch from inside the call.
    const std::function<void(bool)> listener = onCrossing_;
    listener(*inside);
  }
}

}  // namespace brimly
