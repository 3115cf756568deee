#include "platform/x11/X11CompositorWatch.h"

#include <xcb/xcb.h>
#include <xcb/xfixes.h>

#include <QSocketNotifier>
#include <cstdlib>
#include <optional>

#include "platform/x11/X11Connection.h"

namespace brimly {
namespace {

bool ownerPresent(const X11Connection& connection, xcb_atom_t selection) {
  if (!connection.isValid() || selection == XCB_ATOM_NONE) return false;
  xcb_connection_t* c = connection.get();
  xcb_get_selection_owner_reply_t* reply =
      xcb_get_selection_owner_reply(c, xcb_get_selection_owner(c, selection), nullptr);
  if (reply == nullptr) return false;
  const bool owned = reply->owner != XCB_WINDOW_NONE;
  std::free(reply);
  return owned;
}

}  // namespace

X11CompositorWatch::X11CompositorWatch(std::string displayName)
    : displayName_(std::move(displayName)),
      connection_(std::make_unique<X11Connection>(displayName_)) {
  if (!connection_->isValid()) return;
  const std::string name = "_NET_WM_CM_S" + std::to_string(connection_->screenNumber());
  selection_ = connection_->atom(name.c_str());
  present_ = ownerPresent(*connection_, selection_);
}

X11CompositorWatch::~X11CompositorWatch() = default;

bool X11CompositorWatch::start(std::function<void(bool present)> onChange) {
  onChange_ = std::move(onChange);
  if (notifier_) return true;
  if (!connection_->isValid() || selection_ == XCB_ATOM_NONE) return false;
  xcb_connection_t* c = connection_->get();
  const xcb_query_extension_reply_t* extension = xcb_get_extension_data(c, &xcb_xfixes_id);
  if (extension == nullptr || extension->present == 0) return false;
  // XFixes answers nothing to a client that has not said which version it speaks.
  xcb_xfixes_query_version_reply_t* version =
      xcb_xfixes_query_version_reply(c, xcb_xfixes_query_version(c, 1, 0), nullptr);
  if (version == nullptr) return false;
  std::free(version);
  firstXFixesEvent_ = extension->first_event;

  const std::uint32_t changes = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;
  xcb_generic_error_t* error = xcb_request_check(
      c,
      xcb_xfixes_select_selection_input_checked(c, connection_->rootWindow(), selection_, changes));
  if (error != nullptr) {
    std::free(error);
    return false;
  }
  notifier_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(c), QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { readEvents(); });
  // The owner may have changed before the selection took effect: ask once more, from now on
  // every change comes as an event.
  settle(ownerPresent(*connection_, selection_));
  readEvents();
  return true;
}

bool X11CompositorWatch::refresh() {
  if (!connection_->isValid()) connection_ = std::make_unique<X11Connection>(displayName_);
  settle(ownerPresent(*connection_, selection_));
  return present_;
}

void X11CompositorWatch::readEvents() {
  xcb_connection_t* c = connection_->get();
  std::optional<bool> latest;
  while (xcb_generic_event_t* event = xcb_poll_for_event(c)) {
    if ((event->response_type & 0x7f) == firstXFixesEvent_ + XCB_XFIXES_SELECTION_NOTIFY) {
      const auto* notify = reinterpret_cast<const xcb_xfixes_selection_notify_event_t*>(event);
      if (notify->selection == selection_) {
        latest = notify->subtype == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER &&
                 notify->owner != XCB_WINDOW_NONE;
      }
    }
    std::free(event);
  }
  if (xcb_connection_has_error(c) != 0) {
    // The server went away: a closed socket stays readable, so stop listening to it.
    notifier_->setEnabled(false);
    return;
  }
  if (latest) settle(*latest);
}

void X11CompositorWatch::settle(bool present) {
  if (present == present_) return;
  present_ = present;
  if (onChange_) onChange_(present);
}

}  // namespace brimly
