#include "desktop/layershell/LayerSurface.h"

#include <wayland-client.h>

#include <algorithm>

#include "desktop/layershell/ShmBuffer.h"
#include "desktop/layershell/WaylandConnection.h"
#include "fractional-scale-v1-client-protocol.h"
#include "viewporter-client-protocol.h"
#include "wlr-layer-shell-unstable-v1-client-protocol.h"

namespace brimly {
namespace {

// The name compositors show for the surface's purpose (in sway's tree, KWin's support info).
constexpr const char* kNamespace = "brimly";

}  // namespace

LayerSurface::LayerSurface(WaylandConnection& connection, QSize points)
    : connection_(connection), points_(points) {
  static const wl_surface_listener surfaceListener{
      [](void* data, wl_surface*, wl_output* output) {  // enter
        auto* self = static_cast<LayerSurface*>(data);
        self->enteredOutputs_.push_back(output);
        emit self->scaleHintsChanged();
      },
      [](void* data, wl_surface*, wl_output* output) {  // leave
        static_cast<LayerSurface*>(data)->forget(output);
      },
  };
  static const zwlr_layer_surface_v1_listener layerListener{
      [](void* data, zwlr_layer_surface_v1* layer, std::uint32_t serial, std::uint32_t width,
         std::uint32_t height) {  // configure
        auto* self = static_cast<LayerSurface*>(data);
        zwlr_layer_surface_v1_ack_configure(layer, serial);
        // The size asked for is a hint the surface may keep (it is not stretched between two
        // opposite anchors); a 0 leaves it to the surface anyway. Some compositors configure
        // several times with the same size: only the first needs a frame.
        (void)width;
        (void)height;
        if (self->configured_) return;
        self->configured_ = true;
        emit self->configured();
      },
      [](void* data, zwlr_layer_surface_v1*) {  // closed
        emit static_cast<LayerSurface*>(data)->closed();
      },
  };
  static const wp_fractional_scale_v1_listener fractionListener{
      [](void* data, wp_fractional_scale_v1*, std::uint32_t scale) {  // preferred_scale
        auto* self = static_cast<LayerSurface*>(data);
        self->preferredFraction_ = static_cast<int>(scale);
        emit self->scaleHintsChanged();
      },
  };

  surface_ = wl_compositor_create_surface(connection_.compositor());
  wl_surface_add_listener(surface_, &surfaceListener, this);
  if (connection_.viewporter() != nullptr && connection_.fractionalScale() != nullptr) {
    viewport_ = wp_viewporter_get_viewport(connection_.viewporter(), surface_);
    fractional_ = wp_fractional_scale_manager_v1_get_fractional_scale(connection_.fractionalScale(),
                                                                      surface_);
    wp_fractional_scale_v1_add_listener(fractional_, &fractionListener, this);
  }
  layer_ = zwlr_layer_shell_v1_get_layer_surface(connection_.layerShell(), surface_, nullptr,
                                                 ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, kNamespace);
  zwlr_layer_surface_v1_add_listener(layer_, &layerListener, this);
  zwlr_layer_surface_v1_set_size(layer_, static_cast<std::uint32_t>(points_.width()),
                                 static_cast<std::uint32_t>(points_.height()));
  zwlr_layer_surface_v1_set_anchor(layer_, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP);
  zwlr_layer_surface_v1_set_exclusive_zone(layer_, -1);
  zwlr_layer_surface_v1_set_keyboard_interactivity(
      layer_, ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
  applyInputRegion();
  // The first commit carries no buffer: the compositor answers it with the first configure.
  wl_surface_commit(surface_);
  connection_.flush();
}

LayerSurface::~LayerSurface() {
  if (frameCallback_ != nullptr) wl_callback_destroy(frameCallback_);
  if (fractional_ != nullptr) wp_fractional_scale_v1_destroy(fractional_);
  if (viewport_ != nullptr) wp_viewport_destroy(viewport_);
  zwlr_layer_surface_v1_destroy(layer_);
  wl_surface_destroy(surface_);
  connection_.flush();
}

void LayerSurface::forget(wl_output* output) {
  const auto entered = std::find(enteredOutputs_.begin(), enteredOutputs_.end(), output);
  if (entered == enteredOutputs_.end()) return;
  enteredOutputs_.erase(entered);
  emit scaleHintsChanged();
}

void LayerSurface::setInputRegion(const QRect& points) {
  if (points == inputRegion_) return;
  inputRegion_ = points;
  applyInputRegion();
  // Before the first frame the region goes with it; afterwards it needs a commit of its own.
  if (hasBuffer_) {
    wl_surface_commit(surface_);
    connection_.flush();
  }
}

void LayerSurface::applyInputRegion() {
  wl_region* region = wl_compositor_create_region(connection_.compositor());
  if (!inputRegion_.isEmpty()) {
    wl_region_add(region, inputRegion_.x(), inputRegion_.y(), inputRegion_.width(),
                  inputRegion_.height());
  }
  wl_surface_set_input_region(surface_, region);
  wl_region_destroy(region);
}

void LayerSurface::present(ShmBuffer& buffer, const QRegion& damage, const SurfaceScale& scale) {
  static const wl_callback_listener frameListener{
      [](void* data, wl_callback* callback, std::uint32_t) {  // done
        auto* self = static_cast<LayerSurface*>(data);
        wl_callback_destroy(callback);
        self->frameCallback_ = nullptr;
        emit self->frameShown();
      },
  };
  wl_surface_set_buffer_scale(surface_, scale.bufferScale());
  if (viewport_ != nullptr) {
    if (scale.usesViewport()) {
      wp_viewport_set_destination(viewport_, points_.width(), points_.height());
    } else {
      wp_viewport_set_destination(viewport_, -1, -1);  // the buffer's own size in points
    }
  }
  wl_surface_attach(surface_, buffer.buffer(), 0, 0);
  for (const QRect& rect : damage)
    wl_surface_damage_buffer(surface_, rect.x(), rect.y(), rect.width(), rect.height());
  if (frameCallback_ != nullptr) wl_callback_destroy(frameCallback_);
  frameCallback_ = wl_surface_frame(surface_);
  wl_callback_add_listener(frameCallback_, &frameListener, this);
  wl_surface_commit(surface_);
  buffer.markBusy();
  hasBuffer_ = true;
  connection_.flush();
}

}  // namespace brimly
