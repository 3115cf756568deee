#pragma once

#include "panel/EasedAnimation.h"

namespace brimly {

// The opacity of the panel's content: it fades in only once the outline has begun to grow, and
// fades out at once when the panel closes. Each change starts from the current opacity and uses
// the delay that the new target calls for, so a quick open-close-open follows the latest wish.
class FadeAnimation {
 public:
  static constexpr double duration = 0.18;      // seconds, ease-out
  static constexpr double openingDelay = 0.12;  // seconds, before fading in; none when fading out

  explicit FadeAnimation(bool visible = false);

  void setVisible(bool visible, double now);
  bool isVisible() const { return opacity_.target() == 1.0; }

  double opacity(double now) const { return opacity_.value(now); }
  bool isRunning(double now) const { return opacity_.isRunning(now); }

 private:
  EasedAnimation opacity_;
};

}  // namespace brimly
