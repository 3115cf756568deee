#include "desktop/layershell/SurfacePointers.h"

#include <wayland-client.h>
#include <wayland-cursor.h>

#include <algorithm>
#include <cstdlib>

#include "desktop/layershell/WaylandConnection.h"

namespace brimly {
namespace {

// The cursor size in points when the user's environment names none (as most desktops default).
constexpr int kDefaultCursorSize = 24;

int cursorSize() {
  const char* size = std::getenv("XCURSOR_SIZE");
  const int parsed = size != nullptr ? std::atoi(size) : 0;
  return parsed > 0 && parsed <= 256 ? parsed : kDefaultCursorSize;
}

// The arrow: by its current name, else by its X11 name; libwayland-cursor has the latter built in
// when no theme is installed at all.
wl_cursor* arrow(wl_cursor_theme* theme) {
  if (wl_cursor* cursor = wl_cursor_theme_get_cursor(theme, "default")) return cursor;
  return wl_cursor_theme_get_cursor(theme, "left_ptr");
}

void release(wl_pointer* pointer) {
  if (wl_pointer_get_version(pointer) >= WL_POINTER_RELEASE_SINCE_VERSION) {
    wl_pointer_release(pointer);
  } else {
    wl_pointer_destroy(pointer);
  }
}

}  // namespace

// A seat's pointer, while it has one.
struct SurfacePointers::Seat {
  wl_seat* seat = nullptr;
  wl_pointer* pointer = nullptr;
  bool over = false;
};

SurfacePointers::SurfacePointers(WaylandConnection& connection) : connection_(connection) {
  for (const auto& [seat, capabilities] : connection_.seats())
    setCapabilities(seat, capabilities);
  connect(&connection_, &WaylandConnection::seatCapabilitiesChanged, this,
          &SurfacePointers::setCapabilities);
  connect(&connection_, &WaylandConnection::seatRemoved, this,
          [this](wl_seat* seat) { setCapabilities(seat, 0); });
}

SurfacePointers::~SurfacePointers() {
  for (const auto& seat : seats_)
    if (seat->pointer != nullptr) release(seat->pointer);
  if (cursorSurface_ != nullptr) wl_surface_destroy(cursorSurface_);
  if (cursorTheme_ != nullptr) wl_cursor_theme_destroy(cursorTheme_);
}

void SurfacePointers::follow(wl_surface* surface) {
  followed_ = surface;
  for (const auto& seat : seats_)
    setOver(*seat, false);
}

bool SurfacePointers::isInside() const {
  return std::any_of(seats_.begin(), seats_.end(), [](const auto& seat) { return seat->over; });
}

void SurfacePointers::setCursorScale(int scale) {
  if (scale == cursorScale_) return;
  cursorScale_ = scale;
  if (cursorTheme_ != nullptr) wl_cursor_theme_destroy(cursorTheme_);
  cursorTheme_ = nullptr;  // loaded again, at the new size, when next shown
}

void SurfacePointers::setCapabilities(wl_seat* seat, std::uint32_t capabilities) {
  static const wl_pointer_listener listener{
      [](void* data, wl_pointer* pointer, std::uint32_t serial, wl_surface* surface, wl_fixed_t,
         wl_fixed_t) {  // enter
        auto* self = static_cast<SurfacePointers*>(data);
        Seat* seat = self->seatOf(pointer);
        if (seat == nullptr || surface == nullptr || surface != self->followed_) return;
        self->showCursor(pointer, serial);
        self->setOver(*seat, true);
      },
      [](void* data, wl_pointer* pointer, std::uint32_t, wl_surface* surface) {  // leave
        auto* self = static_cast<SurfacePointers*>(data);
        Seat* seat = self->seatOf(pointer);
        if (seat == nullptr || surface == nullptr || surface != self->followed_) return;
        self->setOver(*seat, false);
      },
      // Motion, buttons and scrolling over the zone: taken, and nothing else is done with them.
      [](void*, wl_pointer*, std::uint32_t, wl_fixed_t, wl_fixed_t) {},  // motion
      [](void*, wl_pointer*, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t) {},
      [](void*, wl_pointer*, std::uint32_t, std::uint32_t, wl_fixed_t) {},  // axis
      [](void*, wl_pointer*) {},                                            // frame
      [](void*, wl_pointer*, std::uint32_t) {},                             // axis_source
      [](void*, wl_pointer*, std::uint32_t, std::uint32_t) {},              // axis_stop
      [](void*, wl_pointer*, std::uint32_t, std::int32_t) {},               // axis_discrete
      [](void*, wl_pointer*, std::uint32_t, std::int32_t) {},               // axis_value120
  };
  const bool hasPointer = (capabilities & WL_SEAT_CAPABILITY_POINTER) != 0;
  const auto known = std::find_if(seats_.begin(), seats_.end(),
                                  [seat](const auto& entry) { return entry->seat == seat; });
  if (hasPointer && known == seats_.end()) {
    auto entry = std::make_unique<Seat>();
    entry->seat = seat;
    entry->pointer = wl_seat_get_pointer(seat);
    wl_pointer_add_listener(entry->pointer, &listener, this);
    seats_.push_back(std::move(entry));
  } else if (!hasPointer && known != seats_.end()) {
    setOver(**known, false);
    release((*known)->pointer);
    seats_.erase(known);
  }
}

SurfacePointers::Seat* SurfacePointers::seatOf(wl_pointer* pointer) {
  for (const auto& seat : seats_)
    if (seat->pointer == pointer) return seat.get();
  return nullptr;
}

void SurfacePointers::setOver(Seat& seat, bool over) {
  const bool before = isInside();
  seat.over = over;
  if (isInside() != before) emit insideChanged(isInside());
}

void SurfacePointers::showCursor(wl_pointer* pointer, std::uint32_t serial) {
  if (cursorTheme_ == nullptr) {
    const char* themeName = std::getenv("XCURSOR_THEME");
    cursorTheme_ = wl_cursor_theme_load(themeName, cursorSize() * cursorScale_, connection_.shm());
  }
  wl_cursor* cursor = cursorTheme_ != nullptr ? arrow(cursorTheme_) : nullptr;
  if (cursor == nullptr || cursor->image_count == 0) return;
  wl_cursor_image* image = cursor->images[0];
  if (cursorSurface_ == nullptr)
    cursorSurface_ = wl_compositor_create_surface(connection_.compositor());
  wl_surface_set_buffer_scale(cursorSurface_, cursorScale_);
  wl_surface_attach(cursorSurface_, wl_cursor_image_get_buffer(image), 0, 0);
  wl_surface_damage_buffer(cursorSurface_, 0, 0, static_cast<std::int32_t>(image->width),
                           static_cast<std::int32_t>(image->height));
  wl_surface_commit(cursorSurface_);
  wl_pointer_set_cursor(pointer, serial, cursorSurface_,
                        static_cast<std::int32_t>(image->hotspot_x) / cursorScale_,
                        static_cast<std::int32_t>(image->hotspot_y) / cursorScale_);
}

}  // namespace brimly
