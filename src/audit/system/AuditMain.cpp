#include "audit/system/AuditMain.h"

#include <QCoreApplication>
#include <chrono>
#include <iostream>
#include <thread>

#include "audit/Audit.h"
#include "audit/system/QtLiveLoop.h"
#include "audit/system/SystemKernelFigures.h"
#include "platform/SystemPlatform.h"

namespace brimly::Audit {

int runAuditReport(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const auto platform = makeSystemPlatform();
  const auto kernelFigures = makeSystemKernelFigures();
  QtLiveLoop liveLoop;

  Environment environment;
  environment.platform = platform.get();
  environment.kernelFigures = kernelFigures.get();
  environment.now = [] { return std::chrono::system_clock::now(); };
  environment.blockingWait = [](double seconds) {
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
  };
  environment.liveLoop = &liveLoop;
  return run(environment, std::cout);
}

}  // namespace brimly::Audit
