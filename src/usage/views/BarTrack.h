#pragma once

#include <QImage>

#include "core/Geometry.h"

class QPainter;

namespace brimly {

// Fills a capsule in the painter's brush; the painter's pen must draw no outline.
void fillCapsule(QPainter& painter, const Rect& frame);

// The faint track under a metric bar, the same in every cell and on every frame. Where the painter
// draws whole device pixels one to one (a screen of ratio 1) it is copied from an image drawn
// once, which gives the same pixels as filling its outline at a fraction of the cost; anywhere
// else (a scaled screen, a position between pixels) it is drawn.
class BarTrack {
 public:
  explicit BarTrack(Size size) : size_(size) {}

  // Paints the track with its top left corner at `at`.
  void paint(QPainter& painter, Point at);

 private:
  Size size_;
  QImage image_;  // made at the first copy
};

}  // namespace brimly
