#pragma once

#include <memory>

namespace brimly {

class KeyValueStore;

// What the process itself does differently per system, apart from the desktop: how it stays the
// only Brimly of the user, how it keeps out of the Dock or task bar, and where the preferences
// live. The build links the one definition of these three that fits the system.

// Before the Qt application exists: true when this process may go on as the user's only Brimly,
// false when another one already runs (this one then leaves, silently). Whatever proves the claim
// is held until the process ends.
bool claimSingleInstance();

// After the Qt application exists: keeps the program out of the Dock and the application
// switcher where the system has them.
void becomeAccessory();

// The user's preferences store.
std::unique_ptr<KeyValueStore> makeDefaultsStore();

}  // namespace brimly
