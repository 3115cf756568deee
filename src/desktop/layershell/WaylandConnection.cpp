#include "desktop/layershell/WaylandConnection.h"

#include <wayland-client.h>

#include <QAbstractEventDispatcher>
#include <QSocketNotifier>
#include <QThread>
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "fractional-scale-v1-client-protocol.h"
#include "viewporter-client-protocol.h"
#include "wlr-layer-shell-unstable-v1-client-protocol.h"

namespace brimly {
namespace {

// The versions bound: the least that has what the panel uses, never more than the compositor
// offers. Buffer damage came to wl_compositor in 4; output scales and their "done" in 2; releasing
// a seat's pointer in 3; the layer shell's own destructor in 3.
constexpr std::uint32_t kCompositorVersion = 4;
constexpr std::uint32_t kOutputVersion = 3;
constexpr std::uint32_t kSeatVersion = 5;
constexpr std::uint32_t kLayerShellVersion = 4;

bool named(const char* interface, const wl_interface& known) {
  return std::strcmp(interface, known.name) == 0;
}

template <typename Proxy>
Proxy* bind(wl_registry* registry, std::uint32_t name, const wl_interface& interface,
            std::uint32_t version) {
  return static_cast<Proxy*>(wl_registry_bind(registry, name, &interface, version));
}

bool isSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

}  // namespace

std::unique_ptr<WaylandConnection> WaylandConnection::open() {
  // libwayland falls back to "wayland-0" when neither is set: only a session that names a
  // compositor counts.
  if (!isSet("WAYLAND_DISPLAY") && !isSet("WAYLAND_SOCKET")) return nullptr;
  wl_display* display = wl_display_connect(nullptr);
  if (display == nullptr) return nullptr;
  std::unique_ptr<WaylandConnection> connection(new WaylandConnection(display));
  // The globals, then what the new outputs and seats tell about themselves.
  if (wl_display_roundtrip(display) < 0 || wl_display_roundtrip(display) < 0) return nullptr;
  return connection;
}

WaylandConnection::WaylandConnection(wl_display* display) : display_(display) {
  static const wl_registry_listener listener{&WaylandConnection::announce,
                                             &WaylandConnection::withdraw};
  registry_ = wl_display_get_registry(display_);
  wl_registry_add_listener(registry_, &listener, this);
}

WaylandConnection::~WaylandConnection() {
  notifier_.reset();
  for (const Seat& seat : seats_) {
    if (wl_seat_get_version(seat.seat) >= WL_SEAT_RELEASE_SINCE_VERSION) {
      wl_seat_release(seat.seat);
    } else {
      wl_seat_destroy(seat.seat);
    }
  }
  for (const Output& output : outputs_) {
    if (wl_output_get_version(output.output) >= WL_OUTPUT_RELEASE_SINCE_VERSION) {
      wl_output_release(output.output);
    } else {
      wl_output_destroy(output.output);
    }
  }
  if (fractionalScale_ != nullptr) wp_fractional_scale_manager_v1_destroy(fractionalScale_);
  if (viewporter_ != nullptr) wp_viewporter_destroy(viewporter_);
  if (layerShell_ != nullptr) {
    if (zwlr_layer_shell_v1_get_version(layerShell_) >= ZWLR_LAYER_SHELL_V1_DESTROY_SINCE_VERSION) {
      zwlr_layer_shell_v1_destroy(layerShell_);
    } else {
      wl_proxy_destroy(reinterpret_cast<wl_proxy*>(layerShell_));
    }
  }
  if (shm_ != nullptr) wl_shm_destroy(shm_);
  if (compositor_ != nullptr) wl_compositor_destroy(compositor_);
  wl_registry_destroy(registry_);
  wl_display_flush(display_);
  wl_display_disconnect(display_);
}

bool WaylandConnection::offersLayerShell() const {
  return layerShell_ != nullptr && compositor_ != nullptr && shm_ != nullptr;
}

std::vector<std::pair<wl_seat*, std::uint32_t>> WaylandConnection::seats() const {
  std::vector<std::pair<wl_seat*, std::uint32_t>> result;
  for (const Seat& seat : seats_)
    result.emplace_back(seat.seat, seat.capabilities);
  return result;
}

void WaylandConnection::announce(void* data, wl_registry* registry, std::uint32_t name,
                                 const char* interface, std::uint32_t version) {
  auto* self = static_cast<WaylandConnection*>(data);
  if (named(interface, wl_compositor_interface)) {
    if (version >= kCompositorVersion && self->compositor_ == nullptr) {
      self->compositor_ =
          bind<wl_compositor>(registry, name, wl_compositor_interface, kCompositorVersion);
    }
  } else if (named(interface, wl_shm_interface)) {
    if (self->shm_ == nullptr) self->shm_ = bind<wl_shm>(registry, name, wl_shm_interface, 1);
  } else if (named(interface, zwlr_layer_shell_v1_interface)) {
    if (self->layerShell_ == nullptr) {
      self->layerShell_ = bind<zwlr_layer_shell_v1>(registry, name, zwlr_layer_shell_v1_interface,
                                                    std::min(version, kLayerShellVersion));
    }
  } else if (named(interface, wp_viewporter_interface)) {
    if (self->viewporter_ == nullptr) {
      self->viewporter_ = bind<wp_viewporter>(registry, name, wp_viewporter_interface, 1);
    }
  } else if (named(interface, wp_fractional_scale_manager_v1_interface)) {
    if (self->fractionalScale_ == nullptr) {
      self->fractionalScale_ = bind<wp_fractional_scale_manager_v1>(
          registry, name, wp_fractional_scale_manager_v1_interface, 1);
    }
  } else if (named(interface, wl_output_interface)) {
    self->bindOutput(name, version);
  } else if (named(interface, wl_seat_interface)) {
    self->bindSeat(name, version);
  }
}

void WaylandConnection::bindSeat(std::uint32_t name, std::uint32_t version) {
  static const wl_seat_listener listener{
      [](void* data, wl_seat* seat, std::uint32_t capabilities) {
        auto* self = static_cast<WaylandConnection*>(data);
        for (Seat& known : self->seats_) {
          if (known.seat == seat) known.capabilities = capabilities;
        }
        emit self->seatCapabilitiesChanged(seat, capabilities);
      },
      [](void*, wl_seat*, const char*) {},  // name
  };
  auto* seat = bind<wl_seat>(registry_, name, wl_seat_interface, std::min(version, kSeatVersion));
  wl_seat_add_listener(seat, &listener, this);
  seats_.push_back({name, seat, 0});
}

void WaylandConnection::bindOutput(std::uint32_t name, std::uint32_t version) {
  static const wl_output_listener listener{
      [](void*, wl_output*, std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
         const char*, const char*, std::int32_t) {},  // geometry
      [](void*, wl_output*, std::uint32_t, std::int32_t, std::int32_t, std::int32_t) {},  // mode
      [](void* data, wl_output* output) {  // done: what it told since applies now
        auto* self = static_cast<WaylandConnection*>(data);
        for (Output& known : self->outputs_) {
          if (known.output != output || known.scale == known.pendingScale) continue;
          known.scale = known.pendingScale;
          emit self->outputsChanged();
        }
      },
      [](void* data, wl_output* output, std::int32_t factor) {  // scale
        auto* self = static_cast<WaylandConnection*>(data);
        for (Output& known : self->outputs_) {
          if (known.output == output) known.pendingScale = std::max(1, factor);
        }
      },
      [](void*, wl_output*, const char*) {},  // name
      [](void*, wl_output*, const char*) {},  // description
  };
  auto* output =
      bind<wl_output>(registry_, name, wl_output_interface, std::min(version, kOutputVersion));
  wl_output_add_listener(output, &listener, this);
  outputs_.push_back({name, output, 1, 1});
  emit outputsChanged();
}

void WaylandConnection::withdraw(void* data, wl_registry*, std::uint32_t name) {
  auto* self = static_cast<WaylandConnection*>(data);
  const auto output = std::find_if(self->outputs_.begin(), self->outputs_.end(),
                                   [name](const Output& known) { return known.name == name; });
  if (output != self->outputs_.end()) {
    wl_output* gone = output->output;
    self->outputs_.erase(output);
    if (wl_output_get_version(gone) >= WL_OUTPUT_RELEASE_SINCE_VERSION) {
      wl_output_release(gone);
    } else {
      wl_output_destroy(gone);
    }
    emit self->outputsChanged();
    return;
  }
  const auto seat = std::find_if(self->seats_.begin(), self->seats_.end(),
                                 [name](const Seat& known) { return known.name == name; });
  if (seat != self->seats_.end()) {
    wl_seat* gone = seat->seat;
    self->seats_.erase(seat);
    emit self->seatRemoved(gone);
    if (wl_seat_get_version(gone) >= WL_SEAT_RELEASE_SINCE_VERSION) {
      wl_seat_release(gone);
    } else {
      wl_seat_destroy(gone);
    }
  }
}

void WaylandConnection::dispatchFromEventLoop(std::function<void(const std::string&)> onBroken) {
  onBroken_ = std::move(onBroken);
  notifier_ = std::make_unique<QSocketNotifier>(wl_display_get_fd(display_), QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, &WaylandConnection::readEvents);
  // Requests made anywhere in the program go out before it sleeps.
  connect(QAbstractEventDispatcher::instance(thread()), &QAbstractEventDispatcher::aboutToBlock,
          this, &WaylandConnection::flush);
  readEvents();  // what came during start-up
}

void WaylandConnection::readEvents() {
  if (isBroken_) return;
  // Events already queued are handled before reading more, as libwayland asks.
  while (wl_display_prepare_read(display_) != 0) {
    if (wl_display_dispatch_pending(display_) < 0) return broken();
  }
  if (wl_display_read_events(display_) < 0) return broken();
  if (wl_display_dispatch_pending(display_) < 0) return broken();
  flush();
}

void WaylandConnection::flush() {
  if (isBroken_) return;
  // A full socket (EAGAIN) is sent on the next flush; any other failure is a lost compositor.
  if (wl_display_flush(display_) < 0 && errno != EAGAIN) broken();
}

void WaylandConnection::broken() {
  if (isBroken_) return;
  isBroken_ = true;
  if (notifier_) notifier_->setEnabled(false);
  if (onBroken_) onBroken_(brokenReason());
}

std::string WaylandConnection::brokenReason() const {
  const int error = wl_display_get_error(display_);
  if (error == EPROTO) {
    const wl_interface* interface = nullptr;
    const std::uint32_t code = wl_display_get_protocol_error(display_, &interface, nullptr);
    return "protocol error " + std::to_string(code) + " on " +
           (interface != nullptr ? interface->name : "an unknown object");
  }
  return std::strerror(error != 0 ? error : EPIPE);
}

}  // namespace brimly
