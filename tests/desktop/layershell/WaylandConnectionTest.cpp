#include "desktop/layershell/WaylandConnection.h"

#include <gtest/gtest.h>
#include <wayland-server.h>

#include <QByteArray>
#include <QTemporaryDir>
#include <atomic>
#include <thread>

#include "support/EnvironmentOverride.h"

namespace brimly {
namespace {

using testing::EnvironmentOverride;

// An interface a compositor may offer, by name and version only: the registry announces no more,
// and binding asks no more of it.
struct Offer {
  const char* name;
  int version;
};

// A compositor of the test's own on a socket in a private runtime directory, named by
// WAYLAND_DISPLAY while it lives: it offers the interfaces it is given and answers on a thread of
// its own until it goes.
class TinyCompositor {
 public:
  explicit TinyCompositor(const std::vector<Offer>& offers) {
    for (const Offer& offer : offers)
      interfaces_.push_back(wl_interface{offer.name, offer.version, 0, nullptr, 0, nullptr});
    display_ = wl_display_create();
    if (wl_display_add_socket(display_, kSocket) != 0) return;
    for (const wl_interface& interface : interfaces_) {
      wl_global_create(display_, &interface, interface.version, nullptr,
                       [](wl_client*, void*, uint32_t, uint32_t) {});
    }
    listening_ = true;
    thread_ = std::thread([this] {
      wl_event_loop* loop = wl_display_get_event_loop(display_);
      while (!stop_) {
        wl_event_loop_dispatch(loop, 20);
        wl_display_flush_clients(display_);
      }
    });
  }
  ~TinyCompositor() {
    stop_ = true;
    if (thread_.joinable()) thread_.join();
    // A client that hung up after the last dispatch is still listed; wl_display_destroy alone
    // would leave its resources behind.
    wl_display_destroy_clients(display_);
    wl_display_destroy(display_);
  }

  bool isListening() const { return listening_; }

 private:
  static constexpr const char* kSocket = "brimly-test-0";

  QTemporaryDir runtime_;
  // Set before the socket is made, which goes into the runtime directory.
  EnvironmentOverride runtimeVariable_{"XDG_RUNTIME_DIR", runtime_.path().toUtf8()};
  EnvironmentOverride displayVariable_{"WAYLAND_DISPLAY", kSocket};
  EnvironmentOverride socketVariable_{"WAYLAND_SOCKET", QByteArray()};
  std::vector<wl_interface> interfaces_;
  wl_display* display_ = nullptr;
  bool listening_ = false;
  std::atomic<bool> stop_{false};
  std::thread thread_;
};

// What the layer-shell panel needs: a compositor that takes buffer damage, shared memory, the
// layer shell (offered here at its first version, which has no destructor request to send).
const std::vector<Offer> kLayerShellDesktop = {
    {"wl_compositor", 4}, {"wl_shm", 1}, {"zwlr_layer_shell_v1", 1}};

// --- Edge cases ---

TEST(WaylandConnectionEdge, NoCompositorNamedOpensNothing) {
  // libwayland would try "wayland-0" by itself; only a session that names a compositor counts.
  const EnvironmentOverride display("WAYLAND_DISPLAY", QByteArray());
  const EnvironmentOverride socket("WAYLAND_SOCKET", QByteArray());
  EXPECT_EQ(WaylandConnection::open(), nullptr);
}

TEST(WaylandConnectionEdge, ASocketNobodyServesOpensNothing) {
  QTemporaryDir empty;
  const EnvironmentOverride display("WAYLAND_DISPLAY", empty.filePath("wayland-0").toUtf8());
  const EnvironmentOverride socket("WAYLAND_SOCKET", QByteArray());
  EXPECT_EQ(WaylandConnection::open(), nullptr);
}

TEST(WaylandConnectionEdge, ACompositorTooOldForBufferDamageOffersNoLayerShell) {
  TinyCompositor compositor({{"wl_compositor", 3}, {"wl_shm", 1}, {"zwlr_layer_shell_v1", 1}});
  ASSERT_TRUE(compositor.isListening());
  const std::unique_ptr<WaylandConnection> connection = WaylandConnection::open();
  ASSERT_NE(connection, nullptr);
  EXPECT_FALSE(connection->offersLayerShell());
}

// --- Properties ---

TEST(WaylandConnection, ACompositorWithALayerShellOffersIt) {
  TinyCompositor compositor(kLayerShellDesktop);
  ASSERT_TRUE(compositor.isListening());
  const std::unique_ptr<WaylandConnection> connection = WaylandConnection::open();
  ASSERT_NE(connection, nullptr);
  EXPECT_TRUE(connection->offersLayerShell());
  EXPECT_NE(connection->layerShell(), nullptr);
}

TEST(WaylandConnection, ACompositorWithoutALayerShellAnswersWithoutOne) {
  // GNOME's: it answers, and the XWayland hot zone is chosen.
  TinyCompositor compositor({{"wl_compositor", 5}, {"wl_shm", 1}, {"xdg_wm_base", 4}});
  ASSERT_TRUE(compositor.isListening());
  const std::unique_ptr<WaylandConnection> connection = WaylandConnection::open();
  ASSERT_NE(connection, nullptr);
  EXPECT_FALSE(connection->offersLayerShell());
}

}  // namespace
}  // namespace brimly
