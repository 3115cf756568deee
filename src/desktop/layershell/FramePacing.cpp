#include "desktop/layershell/FramePacing.h"

namespace brimly {

void FramePacing::configured() {
  if (!configured_) changed_ = true;  // a new surface shows nothing until its first frame
  configured_ = true;
}

void FramePacing::unconfigured() {
  configured_ = false;
  awaitingFrame_ = false;  // the callback went with the surface
  hasDrawn_ = false;
}

void FramePacing::drawn() {
  changed_ = false;
  awaitingFrame_ = true;
  hasDrawn_ = true;
}

}  // namespace brimly
