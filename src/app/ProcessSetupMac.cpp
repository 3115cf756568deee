#include "app/ProcessSetup.h"

#include <QObject>

#include "platform/macos/MacApplication.h"
#include "platform/macos/MacPreferencesStore.h"

namespace brimly {

bool claimSingleInstance() {
  // Running applications are known by bundle identifier and process: nothing to hold.
  return !anotherInstanceIsRunning();
}

void askRunningInstanceForControls() {
  // The menu bar always shows the item: a second launch leaves without a word.
}

std::unique_ptr<QObject> listenForControlsRequests(std::function<void()>) {
  return nullptr;
}

void becomeAccessory() {
  // The bundle's LSUIElement already does this from the first moment; a bare executable run
  // during development has no Info.plist and is made a regular application by Qt.
  becomeAccessoryApplication();
}

std::unique_ptr<KeyValueStore> makeDefaultsStore() {
  return std::make_unique<MacPreferencesStore>();
}

std::string applicationShortVersion() {
  return bundleShortVersion().value_or("");
}

}  // namespace brimly
