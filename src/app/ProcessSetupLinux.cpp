#include "app/ProcessSetup.h"

#include <cstdio>
#include "app/ControlsRequest.h"
#include "app/SingleInstanceLock.h"

#include "core/BuildInfo.h"
#include "settings/QSettingsStore.h"

namespace brimly {

bool claimSingleInstance() {
  // The lock lives as long as the process: releasing it would let a second Brimly start.
  static SingleInstanceLock lock(SingleInstanceLock::defaultPath(BuildInfo::bundleIdentifier));
  switch (lock.tryAcquire()) {
    case SingleInstanceLock::Outcome::Acquired:
      return true;
    case SingleInstanceLock::Outcome::HeldByAnother:
      return false;
    case SingleInstanceLock::Outcome::Unavailable:
      // Nobody else holds it: no lock could be made at all. Brimly still runs, and says so.
      std::fprintf(stderr, "%s\n",
                   SingleInstanceLock::unguardedMessage(lock.reason()).toLocal8Bit().constData());
      return true;
  }
  return true;
}

void askRunningInstanceForControls() {
  // Short: the running copy answers at once, and nobody waits for this process to leave.
  constexpr int timeoutMs = 500;
  requestControlsFromRunningInstance(controlsRequestPath(BuildInfo::bundleIdentifier), timeoutMs);
}

std::unique_ptr<QObject> listenForControlsRequests(std::function<void()> showControls) {
  auto server =
      std::make_unique<ControlsRequestServer>(controlsRequestPath(BuildInfo::bundleIdentifier));
  QObject::connect(server.get(), &ControlsRequestServer::controlsRequested, server.get(),
                   std::move(showControls));
  // Without the socket a second launch simply finds nobody to ask; Brimly runs on regardless.
  server->listen();
  return server;
}

void becomeAccessory() {
  // A frameless tool window never appears in a task bar; there is nothing more to do.
}

std::unique_ptr<KeyValueStore> makeDefaultsStore() {
  return std::make_unique<QSettingsStore>();
}

std::string applicationShortVersion() {
  return BuildInfo::shortVersion;
}

}  // namespace brimly
