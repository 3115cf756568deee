#pragma once

#include "audit/Audit.h"
#include "platform/qt/QtSamplingQueue.h"

namespace brimly {

// The live section's loop in a running program: a real sampling thread, and the application's
// own event loop served on the main thread (not a blocking sleep) so that the monitor's samples
// are delivered while the section waits. Needs a QCoreApplication.
class QtLiveLoop final : public LiveLoop {
 public:
  SamplingQueue& samplingQueue() override { return queue_; }
  void serveFor(double seconds) override;

 private:
  QtSamplingQueue queue_;
};

}  // namespace brimly
