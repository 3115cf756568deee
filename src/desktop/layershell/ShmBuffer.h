#pragma once

#include <QImage>
#include <QSize>
#include <functional>
#include <memory>

struct wl_buffer;
struct wl_shm;

namespace brimly {

// One buffer of the layer surface: shared memory that the compositor reads and Brimly paints into
// through a QImage over the same bytes (ARGB32 premultiplied is wl_shm's ARGB8888 on a
// little-endian machine). The compositor holds it from the commit that shows it until it
// releases it; it must not be painted into meanwhile.
class ShmBuffer {
 public:
  // A buffer of `pixels`, drawn at `ratio` device pixels a point; null when the memory cannot be
  // had.
  static std::unique_ptr<ShmBuffer> create(wl_shm* shm, QSize pixels, double ratio);
  ~ShmBuffer();

  ShmBuffer(const ShmBuffer&) = delete;
  ShmBuffer& operator=(const ShmBuffer&) = delete;

  wl_buffer* buffer() const { return buffer_; }
  QImage& image() { return image_; }
  QSize pixels() const { return image_.size(); }
  bool isBusy() const { return busy_; }
  // Handed to the compositor with a commit; busy until it releases it.
  void markBusy() { busy_ = true; }
  // Runs each time the compositor gives the buffer back.
  void setOnRelease(std::function<void()> onRelease) { onRelease_ = std::move(onRelease); }

 private:
  ShmBuffer(wl_buffer* buffer, void* memory, std::size_t bytes, QSize pixels, double ratio);

  wl_buffer* buffer_;
  void* memory_;
  std::size_t bytes_;
  QImage image_;
  bool busy_ = false;
  std::function<void()> onRelease_;
};

}  // namespace brimly
