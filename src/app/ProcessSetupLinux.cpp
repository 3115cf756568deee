#include "app/ProcessSetup.h"

#include "app/ControlsRequest.h"
#include "app/RuntimeDirectory.h"
#include "app/SingleInstanceLock.h"
#include "core/BuildInfo.h"
#include "platform/StandardErrorLine.h"
#include "settings/QSettingsStore.h"

namespace brimly {

namespace {

void printLine(const QString& line) {
  writeStandardErrorLine(line.toStdString());
}

}  // namespace

bool claimSingleInstance() {
  const RuntimeDirectory runtime = runtimeDirectoryOfThisProcess();
  if (runtime.path.isEmpty()) {
    printLine(SingleInstanceLock::unguardedMessage(runtime.problem));
    return true;
  }
  // The lock lives as long as the process: releasing it would let a second Brimly start.
  static SingleInstanceLock lock(
      SingleInstanceLock::pathIn(runtime.path, BuildInfo::bundleIdentifier));
  switch (lock.tryAcquire()) {
    case SingleInstanceLock::Outcome::Acquired:
      return true;
    case SingleInstanceLock::Outcome::HeldByAnother:
      return false;
    case SingleInstanceLock::Outcome::Unavailable:
      // Nobody else holds it: no lock could be made at all. Brimly still runs, and says so.
      printLine(SingleInstanceLock::unguardedMessage(lock.reason()));
      return true;
  }
  return true;
}

void askRunningInstanceForControls() {
  const RuntimeDirectory runtime = runtimeDirectoryOfThisProcess();
  if (runtime.path.isEmpty()) return;
  // Short: the running copy answers at once, and nobody waits for this process to leave.
  constexpr int timeoutMs = 500;
  requestControlsFromRunningInstance(controlsRequestPath(runtime.path, BuildInfo::bundleIdentifier),
                                     timeoutMs);
}

std::unique_ptr<QObject> listenForControlsRequests(std::function<void()> showControls) {
  // Without a private folder there is no channel either; the lock's line has said so.
  const RuntimeDirectory runtime = runtimeDirectoryOfThisProcess();
  if (runtime.path.isEmpty()) return nullptr;
  auto server = std::make_unique<ControlsRequestServer>(
      controlsRequestPath(runtime.path, BuildInfo::bundleIdentifier));
  QObject::connect(server.get(), &ControlsRequestServer::controlsRequested, server.get(),
                   std::move(showControls));
  // Without the socket a second launch finds nobody to ask; Brimly runs on regardless.
  if (!server->listen()) {
    printLine(QStringLiteral("Brimly: no channel for later launches (%1); starting Brimly again "
                             "will not open its controls")
                  .arg(server->errorString()));
  }
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
