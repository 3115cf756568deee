#include "app/ProcessSetup.h"

#include "platform/macos/MacApplication.h"
#include "platform/macos/MacPreferencesStore.h"

namespace brimly {

bool claimSingleInstance() {
  // Running applications are known by bundle identifier and process: nothing to hold.
  return !anotherInstanceIsRunning();
}

void becomeAccessory() {
  // The bundle's LSUIElement already does this from the first moment; a bare executable run
  // during development has no Info.plist and is made a regular application by Qt.
  becomeAccessoryApplication();
}

std::unique_ptr<KeyValueStore> makeDefaultsStore() {
  return std::make_unique<MacPreferencesStore>();
}

}  // namespace brimly
