// The end-to-end tests' pointer on a headless Wayland compositor, which has no pointer of its own:
// a wlroots virtual pointer (sway and the other wlroots compositors) or KWin's fake input,
// whichever the compositor offers. It reads one command a line from standard input and says
// "ready" once the pointer exists:
//
//   move X Y    puts the pointer at X, Y of the WIDTH x HEIGHT desktop given at start: a wlroots
//               virtual pointer goes to that fraction of the whole layout, whatever its scale;
//               KWin's fake input takes X, Y as points of the desktop
//   click       presses and releases the left button where it is
//   quit        ends (so does the end of input)
//
// usage: brimly_pointer_driver WIDTH HEIGHT
#include <linux/input-event-codes.h>
#include <wayland-client.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <sstream>
#include <string>

#include "kde-fake-input-client-protocol.h"
#include "wlr-virtual-pointer-unstable-v1-client-protocol.h"

namespace {

struct Globals {
  zwlr_virtual_pointer_manager_v1* virtualPointers = nullptr;
  org_kde_kwin_fake_input* fakeInput = nullptr;
};

void announce(void* data, wl_registry* registry, std::uint32_t name, const char* interface,
              std::uint32_t version) {
  auto* globals = static_cast<Globals*>(data);
  if (std::strcmp(interface, zwlr_virtual_pointer_manager_v1_interface.name) == 0) {
    globals->virtualPointers = static_cast<zwlr_virtual_pointer_manager_v1*>(
        wl_registry_bind(registry, name, &zwlr_virtual_pointer_manager_v1_interface, 1));
  } else if (std::strcmp(interface, org_kde_kwin_fake_input_interface.name) == 0 && version >= 3) {
    globals->fakeInput = static_cast<org_kde_kwin_fake_input*>(
        wl_registry_bind(registry, name, &org_kde_kwin_fake_input_interface, 3));
  }
}

void withdraw(void*, wl_registry*, std::uint32_t) {}

// Each device is a handful of requests; the times are made up (nothing reads them).
class Pointer {
 public:
  Pointer(const Globals& globals, std::uint32_t width, std::uint32_t height)
      : fakeInput_(globals.fakeInput), width_(width), height_(height) {
    if (globals.virtualPointers != nullptr) {
      virtual_ =
          zwlr_virtual_pointer_manager_v1_create_virtual_pointer(globals.virtualPointers, nullptr);
    } else if (fakeInput_ != nullptr) {
      org_kde_kwin_fake_input_authenticate(fakeInput_, "Brimly tests", "moves the pointer");
    }
  }

  bool exists() const { return virtual_ != nullptr || fakeInput_ != nullptr; }

  void moveTo(std::uint32_t x, std::uint32_t y) {
    if (virtual_ != nullptr) {
      zwlr_virtual_pointer_v1_motion_absolute(virtual_, ++time_, x, y, width_, height_);
      zwlr_virtual_pointer_v1_frame(virtual_);
    } else {
      org_kde_kwin_fake_input_pointer_motion_absolute(fakeInput_, wl_fixed_from_int(int(x)),
                                                      wl_fixed_from_int(int(y)));
    }
  }

  void click() {
    for (const bool pressed : {true, false}) {
      if (virtual_ != nullptr) {
        zwlr_virtual_pointer_v1_button(
            virtual_, ++time_, BTN_LEFT,
            pressed ? WL_POINTER_BUTTON_STATE_PRESSED : WL_POINTER_BUTTON_STATE_RELEASED);
        zwlr_virtual_pointer_v1_frame(virtual_);
      } else {
        org_kde_kwin_fake_input_button(fakeInput_, BTN_LEFT, pressed ? 1 : 0);
      }
    }
  }

 private:
  zwlr_virtual_pointer_v1* virtual_ = nullptr;
  org_kde_kwin_fake_input* fakeInput_;
  std::uint32_t width_;
  std::uint32_t height_;
  std::uint32_t time_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: %s WIDTH HEIGHT\n", argv[0]);
    return 2;
  }
  const auto width = static_cast<std::uint32_t>(std::stoul(argv[1]));
  const auto height = static_cast<std::uint32_t>(std::stoul(argv[2]));
  wl_display* display = wl_display_connect(nullptr);
  if (display == nullptr) {
    std::fprintf(stderr, "pointer driver: no Wayland compositor answers\n");
    return 1;
  }
  Globals globals;
  static const wl_registry_listener listener{announce, withdraw};
  wl_registry_add_listener(wl_display_get_registry(display), &listener, &globals);
  wl_display_roundtrip(display);
  Pointer pointer(globals, width, height);
  if (!pointer.exists()) {
    std::fprintf(
        stderr, "pointer driver: the compositor offers neither a virtual pointer nor fake input\n");
    return 1;
  }
  if (wl_display_roundtrip(display) < 0) return 1;
  std::printf("ready\n");
  std::fflush(stdout);

  std::string line;
  while (std::getline(std::cin, line)) {
    std::istringstream words(line);
    std::string command;
    words >> command;
    if (command == "move") {
      std::uint32_t x = 0;
      std::uint32_t y = 0;
      words >> x >> y;
      pointer.moveTo(x, y);
    } else if (command == "click") {
      pointer.click();
    } else if (command == "quit") {
      break;
    } else if (!command.empty()) {
      std::fprintf(stderr, "pointer driver: unknown command %s\n", command.c_str());
    }
    if (wl_display_roundtrip(display) < 0) return 1;
  }
  wl_display_disconnect(display);
  return 0;
}
