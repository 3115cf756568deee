#include "desktop/layershell/ShmBuffer.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

#include <QtGlobal>

namespace brimly {

// QImage's premultiplied ARGB32 lies in memory as wl_shm's ARGB8888 only on little-endian
// machines; a big-endian one would need another format.
static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN, "wl_shm's ARGB8888 is little-endian");

std::unique_ptr<ShmBuffer> ShmBuffer::create(wl_shm* shm, QSize pixels, double ratio) {
  if (pixels.isEmpty()) return nullptr;
  const int stride = pixels.width() * 4;
  const std::size_t bytes = static_cast<std::size_t>(stride) * pixels.height();
  // Anonymous memory that only this program and the compositor see, sealed against shrinking.
  const int fd = memfd_create("brimly-panel", MFD_CLOEXEC | MFD_ALLOW_SEALING);
  if (fd < 0) return nullptr;
  if (ftruncate(fd, static_cast<off_t>(bytes)) < 0) {
    close(fd);
    return nullptr;
  }
  fcntl(fd, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_SEAL);
  void* memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
  if (memory == MAP_FAILED) {
    close(fd);
    return nullptr;
  }
  wl_shm_pool* pool = wl_shm_create_pool(shm, fd, static_cast<std::int32_t>(bytes));
  wl_buffer* buffer = wl_shm_pool_create_buffer(pool, 0, pixels.width(), pixels.height(), stride,
                                                WL_SHM_FORMAT_ARGB8888);
  // The buffer keeps the memory; the pool and the descriptor are no longer needed.
  wl_shm_pool_destroy(pool);
  close(fd);
  return std::unique_ptr<ShmBuffer>(new ShmBuffer(buffer, memory, bytes, pixels, ratio));
}

ShmBuffer::ShmBuffer(wl_buffer* buffer, void* memory, std::size_t bytes, QSize pixels, double ratio)
    : buffer_(buffer),
      memory_(memory),
      bytes_(bytes),
      image_(static_cast<uchar*>(memory), pixels.width(), pixels.height(), pixels.width() * 4,
             QImage::Format_ARGB32_Premultiplied) {
  image_.setDevicePixelRatio(ratio);
  image_.fill(Qt::transparent);
  static const wl_buffer_listener listener{[](void* data, wl_buffer*) {  // release
    auto* self = static_cast<ShmBuffer*>(data);
    self->busy_ = false;
    if (self->onRelease_) self->onRelease_();
  }};
  wl_buffer_add_listener(buffer_, &listener, this);
}

ShmBuffer::~ShmBuffer() {
  wl_buffer_destroy(buffer_);
  munmap(memory_, bytes_);
}

}  // namespace brimly
