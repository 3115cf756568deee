#pragma once

#include <QObject>
#include <QRect>
#include <QRegion>
#include <QSize>
#include <optional>
#include <vector>

#include "desktop/layershell/SurfaceScale.h"

struct wl_callback;
struct wl_output;
struct wl_surface;
struct wp_fractional_scale_v1;
struct wp_viewport;
struct zwlr_layer_surface_v1;

namespace brimly {

class ShmBuffer;
class WaylandConnection;

// The panel's surface in the compositor's overlay layer: anchored to the top edge of the output the
// compositor chooses and centred on it, above full-screen windows, flush with the edge whatever
// bars keep for themselves, never taking the keyboard. It tells when the compositor has given it
// its size, which outputs it is on and what scale the compositor prefers for it, when a frame it
// was given is on screen, and when the compositor closes it (its output went away).
class LayerSurface : public QObject {
  Q_OBJECT

 public:
  // `points`: the surface's size. The surface asks for its first configure at once.
  LayerSurface(WaylandConnection& connection, QSize points);
  ~LayerSurface() override;

  LayerSurface(const LayerSurface&) = delete;
  LayerSurface& operator=(const LayerSurface&) = delete;

  wl_surface* surface() const { return surface_; }
  QSize points() const { return points_; }
  bool isConfigured() const { return configured_; }
  // The outputs the surface is on now, and the fractional scale the compositor prefers for it (in
  // 120ths) where it says one.
  const std::vector<wl_output*>& enteredOutputs() const { return enteredOutputs_; }
  std::optional<int> preferredFraction() const { return preferredFraction_; }
  // Whether the surface can show a buffer of a fractional scale (through a viewport).
  bool canShowFractions() const { return viewport_ != nullptr; }

  // The part of the surface that takes the pointer, from the next commit on (an empty rectangle:
  // none). Commits at once when a frame is already on screen.
  void setInputRegion(const QRect& points);
  // Shows `buffer`, drawn at `scale`, of which the pixels `damage` changed, and asks to be told
  // when it is on screen.
  void present(ShmBuffer& buffer, const QRegion& damage, const SurfaceScale& scale);

 signals:
  // The compositor gave the surface its size (the first time, and whenever it changes it).
  void configured();
  // The compositor closed the surface; nothing shows it again. Made anew where it is wanted.
  void closed();
  // The frame last presented is on screen.
  void frameShown();
  // The outputs under the surface or the preferred scale changed.
  void scaleHintsChanged();

 private:
  void applyInputRegion();
  void forget(wl_output* output);

  WaylandConnection& connection_;
  QSize points_;
  wl_surface* surface_ = nullptr;
  zwlr_layer_surface_v1* layer_ = nullptr;
  wp_viewport* viewport_ = nullptr;
  wp_fractional_scale_v1* fractional_ = nullptr;
  wl_callback* frameCallback_ = nullptr;
  std::vector<wl_output*> enteredOutputs_;
  std::optional<int> preferredFraction_;
  QRect inputRegion_;
  bool configured_ = false;
  bool hasBuffer_ = false;
};

}  // namespace brimly
