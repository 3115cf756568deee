#pragma once

#include <functional>
#include <memory>
#include <string>

class QObject;

namespace brimly {

class KeyValueStore;

// What the process itself does differently per system, apart from the desktop: how it stays the
// only Brimly of the user, how it keeps out of the Dock or task bar, and where the preferences
// live. The build links the one definition of these that fits the system.

// Before the Qt application exists: true when this process may go on as the user's only Brimly,
// false when another one already runs (this one then leaves, silently). Whatever proves the claim
// is held until the process ends.
bool claimSingleInstance();

// After another Brimly was found running: asks it to show its controls, since a desktop without a
// system tray offers no other way to reach them (Linux). Nothing on macOS, where the menu bar
// always shows the item and a second launch leaves without a word.
void askRunningInstanceForControls();

// The running Brimly's side of that: `showControls` runs on the main thread for each request
// while the returned object lives. Nothing to listen for on macOS.
std::unique_ptr<QObject> listenForControlsRequests(std::function<void()> showControls);

// After the Qt application exists: keeps the program out of the Dock and the application
// switcher where the system has them.
void becomeAccessory();

// The user's preferences store.
std::unique_ptr<KeyValueStore> makeDefaultsStore();

// The version shown as "v" followed by it: the application bundle's short version on macOS, the
// version the build knows on Linux; empty when there is none.
std::string applicationShortVersion();

}  // namespace brimly
