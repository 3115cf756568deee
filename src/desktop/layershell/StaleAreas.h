#pragma once

#include <QRect>
#include <QRegion>
#include <vector>

namespace brimly {

// What each of the layer surface's buffers still lacks. A buffer shows the panel as it was when it
// was last drawn into; before it goes to the compositor again it must be redrawn wherever the
// panel has changed since, and only there.
class StaleAreas {
 public:
  // `count` buffers, each lacking all of `whole` (new buffers, or buffers of a new size).
  void reset(int count, const QRect& whole);
  // One more buffer, lacking all of `whole`; its index is the count before.
  void addBuffer(const QRect& whole);
  // The panel changed over `region`: every buffer lacks it.
  void add(const QRegion& region);
  // What buffer `index` must redraw now; afterwards it lacks nothing.
  QRegion take(int index);

  int count() const { return static_cast<int>(stale_.size()); }

 private:
  std::vector<QRegion> stale_;
};

}  // namespace brimly
