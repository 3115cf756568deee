#include "platform/wayland/WaylandGlobals.h"

#include <wayland-client.h>

#include <cstdint>

namespace brimly {
namespace {

void announce(void* data, wl_registry*, std::uint32_t, const char* interface, std::uint32_t) {
  static_cast<std::vector<std::string>*>(data)->emplace_back(interface);
}

void withdraw(void*, wl_registry*, std::uint32_t) {}

const wl_registry_listener kListener{announce, withdraw};

}  // namespace

std::optional<std::vector<std::string>> waylandGlobals(const std::string& display) {
  if (display.empty()) return std::nullopt;
  wl_display* connection = wl_display_connect(display.c_str());
  if (connection == nullptr) return std::nullopt;
  std::vector<std::string> globals;
  wl_registry* registry = wl_display_get_registry(connection);
  wl_registry_add_listener(registry, &kListener, &globals);
  // One round trip: the compositor announces every global before it answers.
  const bool answered = wl_display_roundtrip(connection) >= 0;
  wl_registry_destroy(registry);
  wl_display_disconnect(connection);
  if (!answered) return std::nullopt;
  return globals;
}

}  // namespace brimly
