#pragma once

#include <QColor>
#include <QObject>
#include <optional>

#include "usage/Color.h"

namespace brimly {

// The Linux desktop's own accent: the highlight colour of the palette that Qt's platform theme
// (KDE's, GNOME's) gives the application. Without a desktop theme Qt falls back to a built-in
// palette, whose highlight is no choice of the user's, so that one counts as none. A change of
// the application's palette (the user picks another colour in the desktop's settings) is
// announced.
class DesktopAccent : public QObject {
  Q_OBJECT

 public:
  // The highlight of Qt's own palette, used where no platform theme gives one.
  static constexpr QRgb qtFallbackHighlight = 0xff308cc6;

  explicit DesktopAccent(QObject* parent = nullptr);

  // The desktop's accent now; none where the desktop gives none.
  std::optional<Color> color() const;
  // The accent that `highlight` stands for: none for Qt's fallback or a see-through colour.
  static std::optional<Color> fromHighlight(const QColor& highlight);

 signals:
  void changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace brimly
