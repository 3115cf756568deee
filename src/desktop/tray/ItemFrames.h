#pragma once

#include <optional>

#include "core/Geometry.h"

namespace brimly {

// The status item's frames as the control card's rules want them (global bottom-left-origin
// points), from where the item is on Qt's desktop (global points, top-left origin), whether a tray
// reported it or a click gave it away.
namespace ItemFrames {

// The item's own frame.
std::optional<Rect> button(const std::optional<Rect>& item);
// The usable area of the screen at the item's centre.
std::optional<Rect> buttonScreenVisible(const std::optional<Rect>& item);
// The usable area of Qt's primary screen.
std::optional<Rect> mainScreenVisible();

// Where the item is taken to be when a click's place is not known (Qt's global points, top-left
// origin): around the pointer where Qt reads it anywhere on the desktop (`pointerReadable`: X11),
// else in the top-right corner of the primary screen. Nothing without a screen.
std::optional<Rect> placeWithoutPosition(bool pointerReadable);

}  // namespace ItemFrames

}  // namespace brimly
