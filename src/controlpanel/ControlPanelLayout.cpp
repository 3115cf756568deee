#include "controlpanel/ControlPanelLayout.h"

#include <algorithm>

namespace brimly {
namespace {

// Spacing between the card's pieces, top to bottom.
constexpr double headerSpacing = 10;  // symbol to the name column
constexpr double nameToVersion = 1;   // inside the name column
constexpr double aboveFirstDivider = 14;
constexpr double belowFirstDivider = 12;
constexpr double aboveFirstRow = 10;
constexpr double betweenRows = 13;
constexpr double aroundSecondDivider = 14;
constexpr double rowSpacing = 8;  // symbol frame, title, spacer, switch
constexpr double footerSpacing = 4;
constexpr double buttonPaddingX = 9;
constexpr double buttonPaddingY = 5;
constexpr double minimumButtonPaddingX = 3;

// A rectangle of `size` centred vertically in a band from `top` of `height`.
Rect centredIn(double x, double top, double height, Size size) {
  return Rect{x, top + (height - size.height) / 2.0, size.width, size.height};
}

}  // namespace

ControlPanelLayout ControlPanelLayout::compute(const ControlPanelMeasures& m) {
  ControlPanelLayout layout;
  const double left = shadowMargin + padding;
  const double right = shadowMargin + cardWidth - padding;
  double y = shadowMargin + padding;

  // Header: the symbol beside a column of the name over the version.
  const double column = m.name.height + nameToVersion + m.version.height;
  const double header = std::max(headerSymbolSize, column);
  layout.headerSymbol = centredIn(left, y, header, Size{headerSymbolSize, headerSymbolSize});
  const double textX = left + headerSymbolSize + headerSpacing;
  const double columnTop = y + (header - column) / 2.0;
  layout.name = Rect{textX, columnTop, m.name.width, m.name.height};
  layout.version =
      Rect{textX, columnTop + m.name.height + nameToVersion, m.version.width, m.version.height};
  y += header + aboveFirstDivider;

  layout.firstDivider = Rect{left, y, right - left, 1};
  y += 1 + belowFirstDivider;

  layout.sectionLabel = Rect{left, y, m.sectionLabel.width, m.sectionLabel.height};
  y += m.sectionLabel.height + aboveFirstRow;

  const double rowHeight = std::max({rowSymbolSize, m.rowTitleHeight, m.switchSize.height});
  for (std::size_t i = 0; i < layout.rows.size(); ++i) {
    Row& row = layout.rows[i];
    row.symbol = Rect{left, y, rowSymbolFrameWidth, rowHeight};
    row.toggle = centredIn(right - m.switchSize.width, y, rowHeight, m.switchSize);
    const double titleX = left + rowSymbolFrameWidth + rowSpacing;
    row.title = Rect{titleX, y + (rowHeight - m.rowTitleHeight) / 2.0,
                     std::max(0.0, row.toggle.minX() - rowSpacing - titleX), m.rowTitleHeight};
    y += rowHeight + (i + 1 < layout.rows.size() ? betweenRows : 0);
  }
  y += aroundSecondDivider;

  layout.secondDivider = Rect{left, y, right - left, 1};
  y += 1 + aroundSecondDivider;

  double footer = 0;
  double titlesWidth = 0;
  for (const Size& title : m.buttonTitles) {
    footer = std::max(footer, title.height + 2 * buttonPaddingY);
    titlesWidth += title.width;
  }
  // Where the titles' font is wider than the card was drawn for, the buttons' side padding gives
  // way first, so that the four never overlap.
  const double spacings = footerSpacing * static_cast<double>(layout.buttons.size() - 1);
  const double room =
      (right - left - spacings - titlesWidth) / (2.0 * static_cast<double>(layout.buttons.size()));
  const double paddingX = std::clamp(room, minimumButtonPaddingX, buttonPaddingX);
  double x = left;
  for (std::size_t i = 0; i < layout.buttons.size(); ++i) {
    const Size title = m.buttonTitles[i];
    const Size button{title.width + 2 * paddingX, title.height + 2 * buttonPaddingY};
    layout.buttons[i] = centredIn(x, y, footer, button);
    x += button.width + footerSpacing;
  }
  // "Quit" stands alone at the trailing edge, unless that would put it onto "About".
  Rect& quit = layout.buttons.back();
  quit.x = std::max(quit.x, right - quit.width);
  y += footer + padding;

  layout.card = Rect{shadowMargin, shadowMargin, cardWidth, y - shadowMargin};
  layout.windowSize = Size{cardWidth + 2 * shadowMargin, y + shadowMargin};
  return layout;
}

}  // namespace brimly
