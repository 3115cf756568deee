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
constexpr double footerSpacing = 4;  // between the buttons, and between their rows
constexpr double buttonPaddingX = 9;
constexpr double buttonPaddingY = 5;

// A rectangle of `size` centred vertically in a band from `top` of `height`.
Rect centredIn(double x, double top, double height, Size size) {
  return Rect{x, top + (height - size.height) / 2.0, size.width, size.height};
}

// Places the footer's buttons from `top` between `left` and `right`, each its title padded 9 left
// and right and 5 above and below, 4 apart: as many to a row as fit, the rest on rows below, 4
// further down, in order; "Quit", the last, at the trailing edge of its row. The titles are
// measured in the fonts really in use, and wherever those are too wide for one row the buttons
// wrap rather than lose their padding; only a title too wide for a row on its own gives up its
// padding, and a button never grows wider than the row, so that it stays inside the card.
// Returns the bottom of the last row.
double placeFooter(std::array<Rect, 4>& buttons, const std::array<Size, 4>& titles, double left,
                   double right, double top) {
  // Across first: each button's place in its row, and the rows' heights.
  std::array<std::size_t, 4> rowOf{};
  std::array<double, 4> rowHeights{};
  std::size_t row = 0;
  double x = left;
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    const Size title = titles[i];
    const double rowWidth = right - left;
    const double paddingX = std::clamp((rowWidth - title.width) / 2.0, 0.0, buttonPaddingX);
    const Size size{std::min(title.width + 2 * paddingX, rowWidth),
                    title.height + 2 * buttonPaddingY};
    if (x > left && x + size.width > right) {
      ++row;
      x = left;
    }
    buttons[i] = Rect{x, 0, size.width, size.height};
    rowOf[i] = row;
    rowHeights[row] = std::max(rowHeights[row], size.height);
    x += size.width + footerSpacing;
  }
  buttons.back().x = std::max(buttons.back().x, right - buttons.back().width);

  // Then down: each row below the one before, each button centred in its row's height.
  std::array<double, 4> rowTops{};
  rowTops[0] = top;
  for (std::size_t r = 1; r <= row; ++r)
    rowTops[r] = rowTops[r - 1] + rowHeights[r - 1] + footerSpacing;
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    buttons[i].y = rowTops[rowOf[i]] + (rowHeights[rowOf[i]] - buttons[i].height) / 2.0;
  }
  return rowTops[row] + rowHeights[row];
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
