#pragma once

#include <QPoint>
#include <QString>
#include <QtGlobal>
#include <optional>

namespace brimly {

// Tells a host's click from its echo. Some hosts answer one click with two identical calls at
// once (waybar 0.9 does, from the second click on), and the second would close the card that the
// first one opened. A call from the same caller at the same position within `windowMs` of the
// one before is taken for that echo: the two come in one go (under a millisecond apart, as
// measured; the window leaves room for a busy machine), and no hand clicks twice so soon.
class EchoedClicks {
 public:
  static constexpr qint64 windowMs = 50;

  // Whether the call from `caller` (its bus name) at `hostPosition`, made at `nowMs` on a steady
  // clock, repeats the one before; every call counts as the one before for the next.
  bool isEcho(const QString& caller, QPoint hostPosition, qint64 nowMs);

 private:
  struct Call {
    QString caller;
    QPoint hostPosition;
    qint64 atMs;
  };
  std::optional<Call> last_;
};

}  // namespace brimly
