#pragma once

#include <QRect>
#include <QRegion>
#include <QSize>
#include <optional>
#include <vector>

namespace brimly {

// How many device pixels a layer surface's buffers give each of its points. The compositor tells
// a surface either a whole number (the scale of the outputs it is on: wl_surface buffer scale) or,
// where it offers wp_fractional_scale_v1, a fraction in 120ths, which the buffer then shows
// through a wp_viewporter viewport at the surface's own size. Either way the panel is drawn at the
// screen's own resolution, so it stays crisp.
class SurfaceScale {
 public:
  static constexpr int denominator = 120;  // wp_fractional_scale_v1 sends 120ths

  // Scale 1: before anything is known.
  SurfaceScale() = default;
  static SurfaceScale whole(int scale);
  static SurfaceScale fractional(int numerator);

  // The scale to draw at: the compositor's preferred fraction where it sends one and the surface
  // can show it through a viewport; else the largest scale of the outputs the surface is on;
  // before it is on any, the largest of all outputs (so that a single screen is right from the
  // first frame); 1 with no outputs. Nonsense (0, negative) counts as 1.
  static SurfaceScale choose(std::optional<int> preferredFraction, bool viewportAvailable,
                             const std::vector<int>& enteredOutputScales,
                             const std::vector<int>& allOutputScales);

  // Device pixels per point.
  double ratio() const { return static_cast<double>(numerator_) / denominator; }
  // For wl_surface.set_buffer_scale: the whole scale, or 1 under a viewport.
  int bufferScale() const { return viewport_ ? 1 : numerator_ / denominator; }
  // Whether the buffer is shown through a viewport at the surface's size in points.
  bool usesViewport() const { return viewport_; }

  // The buffer for a surface of `points`: each side times the scale, rounded half away from zero
  // as the fractional-scale protocol asks.
  QSize bufferSize(QSize points) const;
  // `points` grown to whole points whose edges fall on whole device pixels, within a surface of
  // `surfacePoints`: a part of the buffer that can be cleared and painted again without pixels
  // half in it (at 1.5 every edge falls on an even point, at 1.25 on a fourth one).
  QRegion alignedRegion(const QRegion& points, QSize surfacePoints) const;
  // The buffer pixels that show `points` (for damage): every pixel it touches, within the buffer.
  QRegion bufferRegion(const QRegion& points, QSize surfacePoints) const;

  bool operator==(const SurfaceScale&) const = default;

 private:
  SurfaceScale(int numerator, bool viewport) : numerator_(numerator), viewport_(viewport) {}

  int numerator_ = denominator;
  bool viewport_ = false;
};

}  // namespace brimly
