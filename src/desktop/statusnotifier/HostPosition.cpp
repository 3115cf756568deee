#include "desktop/statusnotifier/HostPosition.h"

namespace brimly {

std::optional<QPoint> screenPositionOfClick(QPoint hostPosition, const QString& hostProgram) {
  if (hostPosition.isNull()) return std::nullopt;
  if (hostProgram == QLatin1String("waybar")) return std::nullopt;
  return hostPosition;
}

}  // namespace brimly
