#include "audit/system/QtLiveLoop.h"

#include <QEventLoop>
#include <QTimer>
#include <cmath>

namespace brimly {

void QtLiveLoop::serveFor(double seconds) {
  QEventLoop loop;
  QTimer::singleShot(static_cast<int>(std::lround(seconds * 1000.0)), Qt::PreciseTimer, &loop,
                     &QEventLoop::quit);
  loop.exec();
}

}  // namespace brimly
