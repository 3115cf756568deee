#pragma once

#include <array>

#include "core/Geometry.h"

namespace brimly {

// The sizes the card's texts and controls take in the fonts they are drawn in; measured by the
// view and handed to the layout.
struct ControlPanelMeasures {
  Size name;                           // "Brimly"
  Size version;                        // "v" and the version
  Size sectionLabel;                   // "SETTINGS"
  double rowTitleHeight = 0;           // a switch row's title
  Size switchSize;                     // a small switch, with its focus margin
  std::array<Size, 4> buttonTitles{};  // "Settings", "Show Panel", "About", "Quit"
};

// Where everything of the control card goes, in points, inside the card's window (whose top-left
// corner is the origin). The card is `cardWidth` wide and padded 16; around it lies an 18-point
// transparent margin that holds its shadow.
struct ControlPanelLayout {
  static constexpr double cardWidth = 264;
  static constexpr double padding = 16;
  static constexpr double shadowMargin = 18;
  static constexpr double cornerRadius = 14;
  static constexpr double headerSymbolSize = 16;
  static constexpr double rowSymbolSize = 12.5;
  static constexpr double rowSymbolFrameWidth = 17;
  static constexpr double buttonCornerRadius = 7;

  struct Row {
    Rect symbol;  // the symbol's frame, 17 wide, the symbol centred in it
    Rect title;
    Rect toggle;  // the switch, at the trailing edge
  };

  Size windowSize;
  Rect card;
  Rect headerSymbol;
  Rect name;
  Rect version;
  Rect firstDivider;
  Rect sectionLabel;
  std::array<Row, 3> rows{};
  Rect secondDivider;
  // The buttons' backgrounds in one row, padded 9 beside their titles; "Quit" alone at the
  // trailing edge.
  std::array<Rect, 4> buttons{};

  static ControlPanelLayout compute(const ControlPanelMeasures& measures);
};

}  // namespace brimly
