#include "desktop/statusnotifier/EchoedClicks.h"

namespace brimly {

bool EchoedClicks::isEcho(const QString& caller, QPoint hostPosition, qint64 nowMs) {
  const bool echo = last_ && last_->caller == caller && last_->hostPosition == hostPosition &&
                    nowMs - last_->atMs < windowMs;
  last_ = Call{caller, hostPosition, nowMs};
  return echo;
}

}  // namespace brimly
