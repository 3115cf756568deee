#include "settingswindow/views/TabBar.h"

#include "panel/views/QtGeometry.h"
#include "settingswindow/views/TabButton.h"

namespace brimly {

namespace {

Rect shifted(const Rect& rect, const QPoint& by) {
  return Rect{rect.x - by.x(), rect.y - by.y(), rect.width, rect.height};
}

}  // namespace

TabBar::TabBar(QWidget* parent) : QWidget(parent) {
  for (const SettingsTab tab : SettingsTab::allCases()) {
    auto* button = new TabButton(tab, this);
    connect(button, &TabButton::clicked, this, [this, tab] { emit tabClicked(tab); });
    buttons_[tab.value()] = button;
  }
  for (std::size_t i = 0; i + 1 < buttons_.size(); ++i)
    setTabOrder(buttons_[i], buttons_[i + 1]);
}

void TabBar::select(SettingsTab tab) {
  for (TabButton* button : buttons_)
    button->setSelected(button->tab() == tab);
}

void TabBar::place(const Rect& bar, const std::vector<TabButtonGeometry>& tabs) {
  const QRect frame = toQRectF(bar).toAlignedRect();
  setGeometry(frame);
  for (const TabButtonGeometry& placed : tabs) {
    buttons_[placed.tab.value()]->place(TabButtonGeometry{
        placed.tab, shifted(placed.frame, frame.topLeft()), shifted(placed.symbol, frame.topLeft()),
        shifted(placed.title, frame.topLeft())});
  }
}

}  // namespace brimly
