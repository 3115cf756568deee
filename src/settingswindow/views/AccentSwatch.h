#pragma once

#include "core/Appearance.h"
#include "settingswindow/views/ChoiceButton.h"
#include "usage/Color.h"

namespace brimly {

// One accent colour of the Appearance tab: a disc of the colour, ringed while it is the chosen
// one. "System" shows the desktop's colour ringed by a wheel of the fixed swatches, for the colour
// that comes from elsewhere. It is read as "Accent colour: Blue".
class AccentSwatch : public ChoiceButton {
  Q_OBJECT

 public:
  static constexpr double diameter = 22.0;
  // The chosen swatch's ring, drawn this far outside the disc.
  static constexpr double ringGap = 2.0;
  static constexpr double ringWidth = 1.5;
  // The room around the disc for the ring or the focus ring, on every side.
  static constexpr double margin = ringGap + ringWidth + 1.0;

  AccentSwatch(AccentChoice choice, QWidget* parent = nullptr);

  AccentChoice choice() const { return choice_; }
  // The colour the disc shows: for "System", the desktop's, which may change.
  void setColor(const Color& color);
  const Color& color() const { return color_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  AccentChoice choice_;
  Color color_;
};

}  // namespace brimly
