#pragma once

#include <QObject>
#include <memory>
#include <vector>

struct wl_cursor_theme;
struct wl_pointer;
struct wl_seat;
struct wl_surface;

namespace brimly {

class WaylandConnection;

// The compositor's pointers as far as one surface goes: whether any of them is over the part of
// it that takes input, and the arrow cursor while one is (a compositor shows a client's surface
// with the cursor the client sets). A seat gains and loses its pointer as devices come and go — a
// headless compositor has none until a virtual pointer appears — and each is followed.
class SurfacePointers : public QObject {
  Q_OBJECT

 public:
  explicit SurfacePointers(WaylandConnection& connection);
  ~SurfacePointers() override;

  SurfacePointers(const SurfacePointers&) = delete;
  SurfacePointers& operator=(const SurfacePointers&) = delete;

  // The surface whose enter and leave count from now on (null: none); a pointer over the one
  // before no longer counts.
  void follow(wl_surface* surface);
  bool isInside() const;
  // The whole scale of the output the surface is on, for a cursor of the screen's resolution.
  void setCursorScale(int scale);

 signals:
  // A pointer came over the surface's input region while none was, or the last one left it.
  void insideChanged(bool inside);

 private:
  struct Seat;

  void setCapabilities(wl_seat* seat, std::uint32_t capabilities);
  void setOver(Seat& seat, bool over);
  void showCursor(wl_pointer* pointer, std::uint32_t serial);
  Seat* seatOf(wl_pointer* pointer);

  WaylandConnection& connection_;
  wl_surface* followed_ = nullptr;
  std::vector<std::unique_ptr<Seat>> seats_;
  wl_surface* cursorSurface_ = nullptr;
  wl_cursor_theme* cursorTheme_ = nullptr;
  int cursorScale_ = 1;
};

}  // namespace brimly
