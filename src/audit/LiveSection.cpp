#include "audit/Audit.h"
#include "core/Precondition.h"
#include "sampling/SystemMonitor.h"

namespace brimly::Audit {

namespace {

// Long enough for two sample cycles at the open-panel rate: the first sample comes at once when
// the panel opens, the second one second later.
constexpr double kLiveSeconds = 1.5;

}  // namespace

void dumpLive(const Environment& environment, ReportWriter& writer) {
  BRIMLY_REQUIRE(environment.liveLoop != nullptr, "the live section needs a loop to run on");
  writer.openTight("Brimly's LIVE reading (the exact value the panel shows)");
  SystemMonitor monitor(*environment.platform, environment.liveLoop->samplingQueue());
  monitor.start();
  monitor.setPanelOpen(true);
  environment.liveLoop->serveFor(kLiveSeconds);
  printLiveFields(monitor.current(), reportWording(environment.flavour), writer);
  writer.close();
  monitor.cancelTimer();
}

}  // namespace brimly::Audit
