#include "panel/FadeAnimation.h"

namespace brimly {

FadeAnimation::FadeAnimation(bool visible)
    : opacity_(duration, TimingCurve::easeOut(), visible ? 1.0 : 0.0) {}

void FadeAnimation::setVisible(bool visible, double now) {
  opacity_.animateTo(visible ? 1.0 : 0.0, now, visible ? openingDelay : 0.0);
}

}  // namespace brimly
