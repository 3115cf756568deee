#include "platform/x11/X11PointerPort.h"

#include <xcb/xcb.h>
#include <xcb/xinput.h>

#include <QSocketNotifier>
#include <cstdlib>

#include "platform/x11/X11Connection.h"

namespace brimly {
namespace {

// Raw events reach every client at all times only from XInput 2.1 on; 2.0 clients lose them
// while another client grabs the device. 2.2 is what current servers grant.
constexpr std::uint32_t kWantedMajor = 2;
constexpr std::uint32_t kWantedMinor = 2;

bool selectRawMotion(const X11Connection& connection) {
  xcb_connection_t* c = connection.get();
  const xcb_query_extension_reply_t* extension = xcb_get_extension_data(c, &xcb_input_id);
  if (extension == nullptr || extension->present == 0) return false;

  xcb_input_xi_query_version_reply_t* version = xcb_input_xi_query_version_reply(
      c, xcb_input_xi_query_version(c, kWantedMajor, kWantedMinor), nullptr);
  if (version == nullptr) return false;
  const bool usable = version->major_version >= 2;
  std::free(version);
  if (!usable) return false;

  // Master devices only: one event per move of the on-screen pointer, not one per physical mouse.
  struct {
    xcb_input_event_mask_t header;
    std::uint32_t bits;
  } mask{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, XCB_INPUT_XI_EVENT_MASK_RAW_MOTION};
  xcb_generic_error_t* error = xcb_request_check(
      c, xcb_input_xi_select_events_checked(c, connection.rootWindow(), 1, &mask.header));
  if (error != nullptr) {
    std::free(error);
    return false;
  }
  return true;
}

}  // namespace

X11PointerPort::X11PointerPort(ToDesktopPoint toDesktopPoint, std::string displayName)
    : toDesktopPoint_(std::move(toDesktopPoint)), displayName_(std::move(displayName)) {}

X11PointerPort::~X11PointerPort() {
  stopWatching();
}

bool X11PointerPort::startWatching(std::function<void()> onMove) {
  stopWatching();
  auto connection = std::make_unique<X11Connection>(displayName_);
  if (!connection->isValid()) {
    failure_ = Failure::noDisplay;
    return false;
  }
  if (!selectRawMotion(*connection)) {
    failure_ = Failure::noXInput2;
    return false;
  }
  failure_ = Failure::none;
  xinputOpcode_ = xcb_get_extension_data(connection->get(), &xcb_input_id)->major_opcode;
  events_ = std::move(connection);
  onMove_ = std::move(onMove);
  notifier_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(events_->get()),
                                                QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { readEvents(true); });
  // Replies read while selecting may have brought events along: take them now, or the socket
  // would not wake us for them. The caller evaluates the position after starting anyway.
  readEvents(false);
  return true;
}

void X11PointerPort::stopWatching() {
  releaseNotifier();
  events_.reset();  // closing the connection ends the selection with it
  onMove_ = nullptr;
}

void X11PointerPort::releaseNotifier() {
  if (!notifier_) return;
  if (dispatching_) {
    // The notifier is emitting the signal that got us here; it may only go once that returns.
    notifier_->setEnabled(false);
    notifier_.release()->deleteLater();
  } else {
    notifier_.reset();
  }
}

void X11PointerPort::readEvents(bool notify) {
  if (!events_) return;
  xcb_connection_t* c = events_->get();
  bool moved = false;
  while (xcb_generic_event_t* event = xcb_poll_for_event(c)) {
    if ((event->response_type & 0x7f) == XCB_GE_GENERIC) {
      const auto* generic = reinterpret_cast<const xcb_ge_generic_event_t*>(event);
      if (generic->extension == xinputOpcode_ && generic->event_type == XCB_INPUT_RAW_MOTION) {
        moved = true;
      }
    }
    std::free(event);
  }
  if (xcb_connection_has_error(c) != 0) {
    // The server went away: a closed socket stays readable, so stop listening to it.
    dispatching_ = notify;
    releaseNotifier();
    dispatching_ = false;
    return;
  }
  // However many reports came in this batch, the listener asks for the position once. It may
  // stop (or restart) the watch from inside the call.
  if (moved && notify && onMove_) {
    dispatching_ = true;
    const std::function<void()> listener = onMove_;
    listener();
    dispatching_ = false;
  }
}

std::optional<Point> X11PointerPort::location() const {
  if (!queries_ || !queries_->isValid()) {
    queries_ = std::make_unique<X11Connection>(displayName_);
    if (!queries_->isValid()) return std::nullopt;
  }
  xcb_connection_t* c = queries_->get();
  xcb_query_pointer_reply_t* pointer =
      xcb_query_pointer_reply(c, xcb_query_pointer(c, queries_->rootWindow()), nullptr);
  std::optional<Point> rootPixels;
  // A pointer on another X screen reports same_screen false and no usable coordinates.
  if (pointer != nullptr && pointer->same_screen != 0) {
    rootPixels = Point{static_cast<double>(pointer->root_x), static_cast<double>(pointer->root_y)};
  }
  std::free(pointer);
  if (!rootPixels || !toDesktopPoint_) return std::nullopt;
  return toDesktopPoint_(*rootPixels);
}

}  // namespace brimly
