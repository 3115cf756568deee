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

// A rectangle of `size` centred vertically in a band from `top` of `height`.
Rect centredIn(double x, double top, double height, Size size) {
  return Rect{x, top + (height - size.height) / 2.0, size.width, size.height};
}

// Places the footer's four buttons in one row from `top`, 4 apart, "Quit" alone at the trailing
// edge: each its title padded 9 left and right and 5 above and below. The titles are measured in
// the fonts really in use. A row too wide for the space between the card's paddings spreads
// evenly into them, keeping the buttons' padding as long as the row fits the card at all; only a
// row too wide for the whole card gives up padding, as little as it must, and never leaves the
// card. Returns the row's bottom.
double placeFooter(std::array<Rect, 4>& buttons, const std::array<Size, 4>& titles, double left,
                   double right, double top) {
  double titlesWidth = 0;
  double height = 0;
  for (const Size& title : titles) {
    titlesWidth += title.width;
    height = std::max(height, title.height + 2 * buttonPaddingY);
  }
  const auto count = static_cast<double>(buttons.size());
  const double spacings = footerSpacing * (count - 1);
  const double cardLeft = left - ControlPanelLayout::padding;
  const double cardRight = right + ControlPanelLayout::padding;
  const double paddingX =
      std::clamp((cardRight - cardLeft - spacings - titlesWidth) / (2 * count), 0.0, buttonPaddingX);
  const double rowWidth = titlesWidth + 2 * paddingX * count + spacings;
  const double overflow = std::max(0.0, rowWidth - (right - left));
  const double rowLeft = std::max(cardLeft, left - overflow / 2);
  const double rowRight = std::min(cardRight, right + overflow / 2);

  double x = rowLeft;
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    const Size title = titles[i];
    buttons[i] = centredIn(x, top, height, Size{title.width + 2 * paddingX,
                                               title.height + 2 * buttonPaddingY});
    x += buttons[i].width + footerSpacing;
  }
  Rect& quit = buttons.back();
  quit.x = rowRight - quit.width;
  return top + height;
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

  y = placeFooter(layout.buttons, m.buttonTitles, left, right, y);
  y += padding;

  layout.card = Rect{shadowMargin, shadowMargin, cardWidth, y - shadowMargin};
  layout.windowSize = Size{cardWidth + 2 * shadowMargin, y + shadowMargin};
  return layout;
}

}  // namespace brimly
