#pragma once

#include <QPoint>
#include <QString>
#include <optional>

namespace brimly {

// The position a StatusNotifierItem host passes with a click, if it says where on the screen the
// click was (in device pixels, as Plasma and GNOME's AppIndicator extension pass it). Nothing for
// (0, 0), which hosts send when they know no position, nor from the hosts that pass the click's
// place inside their icon instead (waybar), which says nothing of where the icon is. `hostProgram`
// is the name of the calling program, as the system knows it.
std::optional<QPoint> screenPositionOfClick(QPoint hostPosition, const QString& hostProgram);

}  // namespace brimly
