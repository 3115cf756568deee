#pragma once

#include <QObject>

#include "usage/Color.h"
#include "usage/Theme.h"

namespace brimly {

// The accent every window draws with right now: switches, the selected tab, header symbols, drag
// lines, focus rings and the previews' bars. One per application; it starts as the green that
// Brimly has always had, and whoever follows the user's choice sets it. The views read it as
// they paint, so a change repaints every window and nothing else needs to be told; those that
// keep the colour elsewhere (a palette) listen to `changed`.
class Accent : public QObject {
  Q_OBJECT

 public:
  static Accent& shared();
  // The shared accent's colour: what a view paints with.
  static Color current() { return shared().color(); }

  Color color() const { return color_; }
  // Takes `color`; when it differs, announces the change and repaints every window.
  void setColor(const Color& color);

 signals:
  void changed();

 private:
  Accent() = default;

  Color color_ = Theme::accent;
};

}  // namespace brimly
