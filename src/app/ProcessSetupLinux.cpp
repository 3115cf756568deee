#include "app/ProcessSetup.h"

#include "app/SingleInstanceLock.h"
#include "core/BuildInfo.h"
#include "settings/QSettingsStore.h"

namespace brimly {

bool claimSingleInstance() {
  // The lock lives as long as the process: releasing it would let a second Brimly start.
  static SingleInstanceLock lock(SingleInstanceLock::defaultPath(BuildInfo::bundleIdentifier));
  return lock.tryAcquire();
}

void becomeAccessory() {
  // A frameless tool window never appears in a task bar; there is nothing more to do.
}

std::unique_ptr<KeyValueStore> makeDefaultsStore() {
  return std::make_unique<QSettingsStore>();
}

}  // namespace brimly
