#pragma once

#include <QColor>
#include <QObject>
#include <memory>
#include <optional>

#include "usage/Color.h"

namespace brimly {

// The desktop's own accent colour, and word when it changes. On macOS it is the accent the user
// picked in the system's settings (`NSColor.controlAccentColor`), followed as the system's colours
// change. On Linux it is the highlight colour of the palette that Qt's platform theme (KDE's,
// GNOME's) gives the application; without a desktop theme Qt falls back to a built-in palette,
// whose highlight is no choice of the user's, so that one counts as none. A change of the
// application's palette is announced on either system.
class DesktopAccent : public QObject {
  Q_OBJECT

 public:
  // The highlight of Qt's own palette, used where no platform theme gives one.
  static constexpr QRgb qtFallbackHighlight = 0xff308cc6;

  explicit DesktopAccent(QObject* parent = nullptr);

  // The desktop's accent now; none where the desktop gives none. One source file per system.
  std::optional<Color> color() const;
  // The accent that `highlight` stands for: none for Qt's fallback or a see-through colour.
  static std::optional<Color> fromHighlight(const QColor& highlight);

 signals:
  void changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Starts whatever watch of the system's colours Qt's palette does not already give; one source
  // file per system.
  void watchSystem();

  std::shared_ptr<void> systemWatch_;
};

}  // namespace brimly
