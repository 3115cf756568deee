#pragma once

#include <vector>

#include "core/Geometry.h"
#include "settingswindow/SettingsTab.h"

namespace brimly {

// One button of the tab bar: the rounded rectangle behind it, and its symbol and title, centred
// in it side by side.
struct TabButtonGeometry {
  SettingsTab tab;
  Rect frame;
  Rect symbol;
  Rect title;

  bool operator==(const TabButtonGeometry&) const = default;
};

// Everything the settings window's content draws, in the content's coordinates (origin at the
// top left of the 360 × 468 content area).
struct SettingsViewGeometry {
  Rect header;        // the header row
  Rect headerSymbol;  // the gauge, vertically centred in the row
  Rect name;          // "Brimly"
  Rect version;       // "v…", one point under the name
  Rect tabBar;
  std::vector<TabButtonGeometry> tabs;  // in the tab bar's order
  Rect rule;                            // the hairline under the tab bar
  Rect content;  // where the selected tab's content goes, down to the bottom padding

  bool operator==(const SettingsViewGeometry&) const = default;
};

// The settings window's content: padded 18 on every side, a header row (the gauge and a column of
// the product's name and version), the tab bar 14 below it, a one-point rule 14 below that, and
// the selected tab's content 16 below the rule.
namespace SettingsViewLayout {

inline constexpr double width = 360.0;
inline constexpr double height = 468.0;
inline constexpr double padding = 18.0;

inline constexpr double headerSpacing = 10.0;  // between the gauge and the name column
inline constexpr double headerSymbolSize = 16.0;
inline constexpr double nameSize = 14.5;     // semibold, primary
inline constexpr double versionSize = 10.5;  // regular, secondary
inline constexpr double nameVersionSpacing = 1.0;

inline constexpr double tabBarTop = 14.0;  // below the header
inline constexpr double tabSpacing = 4.0;
inline constexpr double tabVerticalPadding = 6.0;
inline constexpr double tabCornerRadius = 8.0;
inline constexpr double tabLabelSpacing = 5.0;  // between a tab's symbol and its title
inline constexpr double tabSymbolSize = 11.0;
inline constexpr double tabTitleSize = 12.0;          // medium
inline constexpr double selectedTabOpacity = 0.16;    // of the accent, behind the selected tab
inline constexpr double unselectedTabOpacity = 0.04;  // of white, behind the others

inline constexpr double ruleTop = 14.0;  // below the tab bar
inline constexpr double ruleHeight = 1.0;
inline constexpr double contentTop = 16.0;  // below the rule

// The measured texts: the name and version lines, and each tab's title in the tab bar's order.
struct TextSizes {
  Size name;
  Size version;
  std::vector<Size> tabTitles;
};

// The tabs share the bar's width equally, whatever their titles; a title too wide for its
// button is centred all the same and overflows it.
SettingsViewGeometry layout(const TextSizes& texts);

}  // namespace SettingsViewLayout

}  // namespace brimly
