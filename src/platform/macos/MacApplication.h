#pragma once

#include <cstdint>
#include <optional>
#include <string>

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

// Turns the native window of the control card into a pop-up beneath the menu-bar item: at the
// pop-up menu level (101), on every space, out of the window cycle and beside full-screen windows
// (collection behaviour 321), transparent, without shadow (the card draws its own), not movable,
// still shown while the application is inactive, and shown and hidden as a utility window. Call it
// once the native window exists and again after every show(), since Qt may reset part of it or
// swap the window while showing. Qt answers opacity and background itself: the card's widget also
// needs Qt::WA_TranslucentBackground. False when the id has no native window.
bool configureControlCard(std::uintptr_t windowId);

// Gives the native window of a titled window of Brimly's (settings, About) its look: the title
// bar transparent and lying over the top of the content (full-size content view), the title
// hidden, movable by dragging its background, dark whatever the system appearance, on an opaque
// sRGB background of `red`, `green`, `blue` (0…1). The content keeps `contentWidth` ×
// `contentHeight` points. Qt recomputes the style mask whenever it reapplies window flags, so
// call it again after every show(). False when the id has no native window.
bool configureTitledWindow(std::uintptr_t windowId, double contentWidth, double contentHeight,
                           double red, double green, double blue);

// Lets AppKit move a window of Brimly's from the left mouse-down being handled now, as the window's
// title bar would (performWindowDragWithEvent:): Qt's content view takes every click for itself,
// so a drag on a window's background never reaches AppKit on its own. False when the id has no
// native window or no left mouse-down is being handled.
bool dragWindowFromCurrentMouseDown(std::uintptr_t windowId);

// Asks to make this application the active one (NSApplication's activate): an accessory
// application has to before one of its windows can take the keyboard.
void activateApplication();

// Makes the window key and puts it in front of the others (makeKeyAndOrderFront). False when the
// id has no native window.
bool makeKeyAndFront(std::uintptr_t windowId);

// The main bundle's short version string ("CFBundleShortVersionString"); nothing when the bundle
// has none or it is not a string (a bare executable run during development has no bundle).
std::optional<std::string> bundleShortVersion();

}  // namespace brimly
