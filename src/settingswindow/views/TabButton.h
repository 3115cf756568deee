#pragma once

#include <QAbstractButton>

class QPainter;

#include "accessibility/AccessibleParts.h"
#include "settingswindow/SettingsViewLayout.h"

namespace brimly {

// One button of the settings window's tab bar: the tab's symbol and title on a rounded
// rectangle, tinted with the accent while its tab is selected. It takes the keyboard focus with
// Tab; Space or Return selects it. Assistive technologies read it as a page tab, selected or not.
class TabButton : public QAbstractButton, public AccessibleParts {
  Q_OBJECT

 public:
  explicit TabButton(SettingsTab tab, QWidget* parent = nullptr);

  SettingsTab tab() const { return tab_; }
  bool isSelected() const { return selected_; }
  void setSelected(bool selected);
  // Places the button at `placed` (in its parent's coordinates).
  void place(const TabButtonGeometry& placed);
  // The colour of the symbol and title now.
  QColor foreground() const;

  static QFont titleFont(const QPaintDevice& device);

  QAccessible::Role accessibleRole() const override { return QAccessible::PageTab; }
  void addAccessibleState(QAccessible::State& state) const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  SettingsTab tab_;
  bool selected_ = false;
  TabButtonGeometry placed_;
};

// The rounded rectangle behind a tab's title at `frame`: the accent's tint while `selected`, a
// faint white otherwise, and the focus ring while `button` shows it.
void paintTabShape(QPainter& painter, const QWidget& button, const QRectF& frame, bool selected);

}  // namespace brimly
