#pragma once

#include <cstdint>

// The application-level calls of the macOS desktop that Qt does not make for us. Main thread only.

namespace brimly {

// Whether another running application has our bundle identifier (the main bundle's, or the
// built-in one when running outside a bundle) and a process identifier other than ours.
bool anotherInstanceIsRunning();

// Makes this process an accessory: no Dock icon, no menu bar of its own. Call it after the
// QApplication exists, since Qt turns a bundle-less process into a regular application while it
// starts.
void becomeAccessoryApplication();

// Turns the native window of a top-level widget into the overlay panel: above the menu bar (level
// 25), on every space, stationary, out of the window cycle and beside full-screen windows
// (collection behaviour 337), transparent, without shadow, not movable, still shown while the
// application is inactive, and letting every click through. `windowId` is the widget's winId().
// Qt resets the level, shadow and mouse handling whenever it reapplies window flags and may swap
// the native window when it shows one, so call this again after every show(). Qt answers
// opacity and background itself: the widget also needs Qt::WA_TranslucentBackground. False when
// the id has no native window.
bool configureOverlayPanel(std::uintptr_t windowId);

// Puts the overlay panel in front of the other windows of its level without activating the
// application (orderFrontRegardless). False when the id has no native window.
bool orderOverlayFront(std::uintptr_t windowId);

}  // namespace brimly
