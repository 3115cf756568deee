#include "platform/wayland/WaylandGlobals.h"

#include <gtest/gtest.h>
#include <wayland-server.h>

#include <QTemporaryDir>
#include <algorithm>
#include <atomic>
#include <thread>

namespace brimly {
namespace {

// An interface a compositor may offer, by name only: the registry announces names and versions.
wl_interface namedInterface(const char* name) {
  return wl_interface{name, 1, 0, nullptr, 0, nullptr};
}

// A compositor of the test's own on a socket in a private runtime directory: it offers the
// interfaces it is given and answers on a thread of its own until it goes.
class TinyCompositor {
 public:
  explicit TinyCompositor(std::vector<wl_interface> interfaces)
      : interfaces_(std::move(interfaces)), previousRuntime_(qgetenv("XDG_RUNTIME_DIR")) {
    qputenv("XDG_RUNTIME_DIR", runtime_.path().toUtf8());
    display_ = wl_display_create();
    if (wl_display_add_socket(display_, kSocket) != 0) return;
    for (const wl_interface& interface : interfaces_) {
      wl_global_create(display_, &interface, 1, nullptr,
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
    wl_display_destroy(display_);
    qputenv("XDG_RUNTIME_DIR", previousRuntime_);
  }

  bool isListening() const { return listening_; }
  static constexpr const char* kSocket = "brimly-test-0";

 private:
  std::vector<wl_interface> interfaces_;
  QByteArray previousRuntime_;
  QTemporaryDir runtime_;
  wl_display* display_ = nullptr;
  bool listening_ = false;
  std::atomic<bool> stop_{false};
  std::thread thread_;
};

bool contains(const std::vector<std::string>& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

TEST(WaylandGlobalsEdge, NoNameAsksNobody) {
  EXPECT_EQ(waylandGlobals(""), std::nullopt);
}

TEST(WaylandGlobalsEdge, ASocketNobodyServesAnswersNothing) {
  QTemporaryDir empty;
  EXPECT_EQ(waylandGlobals(empty.filePath("wayland-0").toStdString()), std::nullopt);
}

TEST(WaylandGlobals, ACompositorTellsEveryInterfaceItOffers) {
  TinyCompositor compositor(
      {namedInterface("wl_compositor"), namedInterface("zwlr_layer_shell_v1")});
  ASSERT_TRUE(compositor.isListening());
  const std::optional<std::vector<std::string>> globals = waylandGlobals(TinyCompositor::kSocket);
  ASSERT_TRUE(globals.has_value());
  EXPECT_TRUE(contains(*globals, "wl_compositor"));
  EXPECT_TRUE(contains(*globals, "zwlr_layer_shell_v1"));
}

TEST(WaylandGlobals, ACompositorWithoutALayerShellDoesNotNameOne) {
  TinyCompositor compositor({namedInterface("wl_compositor")});
  ASSERT_TRUE(compositor.isListening());
  const std::optional<std::vector<std::string>> globals = waylandGlobals(TinyCompositor::kSocket);
  ASSERT_TRUE(globals.has_value());
  EXPECT_FALSE(contains(*globals, "zwlr_layer_shell_v1"));
}

}  // namespace
}  // namespace brimly
