#pragma once

#include <QObject>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct wl_compositor;
struct wl_display;
struct wl_output;
struct wl_registry;
struct wl_seat;
struct wl_shm;
struct wp_fractional_scale_manager_v1;
struct wp_viewporter;
struct zwlr_layer_shell_v1;
class QSocketNotifier;

// Handed around as it is: Qt never looks inside.
Q_DECLARE_OPAQUE_POINTER(wl_seat*)

namespace brimly {

// Brimly's own connection to the Wayland compositor, beside whatever Qt runs on (Qt 6.4 has no
// public way to give its own windows the layer-shell role). It binds the globals the layer-shell
// panel needs at the versions it uses, follows the outputs and seats as they come and go, and
// reads and sends from Qt's event loop: it wakes only when the compositor has something to say.
class WaylandConnection : public QObject {
  Q_OBJECT

 public:
  struct Output {
    std::uint32_t name = 0;  // the registry's name for it
    wl_output* output = nullptr;
    int scale = 1;         // as of its last "done"
    int pendingScale = 1;  // told, not yet done
  };

  // Connects to the compositor that WAYLAND_DISPLAY names (or that handed over WAYLAND_SOCKET)
  // and learns its globals and outputs; none when neither is set or no compositor answers.
  static std::unique_ptr<WaylandConnection> open();
  ~WaylandConnection() override;

  WaylandConnection(const WaylandConnection&) = delete;
  WaylandConnection& operator=(const WaylandConnection&) = delete;

  // Whether the compositor offers all the layer-shell panel needs: the layer shell itself, a
  // compositor that takes buffer damage (version 4) and shared-memory buffers.
  bool offersLayerShell() const;

  wl_display* display() const { return display_; }
  wl_compositor* compositor() const { return compositor_; }
  wl_shm* shm() const { return shm_; }
  zwlr_layer_shell_v1* layerShell() const { return layerShell_; }
  // Where offered (else null): viewports, and the compositor's preferred fractional scale.
  wp_viewporter* viewporter() const { return viewporter_; }
  wp_fractional_scale_manager_v1* fractionalScale() const { return fractionalScale_; }
  const std::vector<Output>& outputs() const { return outputs_; }
  // Every seat with what it has now (wl_seat's capability bits: pointer, keyboard, touch).
  std::vector<std::pair<wl_seat*, std::uint32_t>> seats() const;

  // From now on what the compositor sends is read and handled as it comes, and requests go out
  // before the event loop waits. `onBroken` runs once, with the reason, when the compositor goes
  // away or ends the connection; nothing is read after that.
  void dispatchFromEventLoop(std::function<void(const std::string& reason)> onBroken);
  // Sends the queued requests now.
  void flush();

 signals:
  // An output came or went, or finished telling a new scale.
  void outputsChanged();
  // A seat came, or gained or lost a device (a headless compositor's seat has no pointer until a
  // virtual one appears).
  void seatCapabilitiesChanged(wl_seat* seat, std::uint32_t capabilities);
  // Right before the seat is released.
  void seatRemoved(wl_seat* seat);

 private:
  struct Seat {
    std::uint32_t name = 0;
    wl_seat* seat = nullptr;
    std::uint32_t capabilities = 0;
  };

  explicit WaylandConnection(wl_display* display);
  static void announce(void* self, wl_registry* registry, std::uint32_t name, const char* interface,
                       std::uint32_t version);
  static void withdraw(void* self, wl_registry* registry, std::uint32_t name);
  void bindOutput(std::uint32_t name, std::uint32_t version);
  void bindSeat(std::uint32_t name, std::uint32_t version);
  void readEvents();
  void broken();
  std::string brokenReason() const;

  wl_display* display_;
  wl_registry* registry_ = nullptr;
  wl_compositor* compositor_ = nullptr;
  wl_shm* shm_ = nullptr;
  zwlr_layer_shell_v1* layerShell_ = nullptr;
  wp_viewporter* viewporter_ = nullptr;
  wp_fractional_scale_manager_v1* fractionalScale_ = nullptr;
  std::vector<Output> outputs_;
  std::vector<Seat> seats_;
  std::unique_ptr<QSocketNotifier> notifier_;
  std::function<void(const std::string&)> onBroken_;
  bool isBroken_ = false;
};

}  // namespace brimly
