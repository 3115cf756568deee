#pragma once

#include <QAccessibleWidget>
#include <vector>

namespace brimly {

class AccessibleParts;

// How assistive technologies read a widget of Brimly: the role and extra states its
// `AccessibleParts` give, the texts it paints itself as children of their own (ahead of its child
// widgets), and, for a button, a press (or, for a check box, a toggle) that is exactly a click.
class AccessibleWidget : public QAccessibleWidget {
 public:
  AccessibleWidget(QWidget* widget, AccessibleParts& parts);
  ~AccessibleWidget() override;

  AccessibleWidget(const AccessibleWidget&) = delete;
  AccessibleWidget& operator=(const AccessibleWidget&) = delete;

  QAccessible::Role role() const override;
  QAccessible::State state() const override;

  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;

  QStringList actionNames() const override;
  void doAction(const QString& actionName) override;

 private:
  int drawnCount() const;
  QAccessibleInterface* drawnChild(int index) const;

  AccessibleParts& parts_;
  // The drawn texts' interfaces, made as they are first asked for and kept while the widget
  // lives (a client holds on to them by their ids).
  mutable std::vector<QAccessible::Id> drawnChildren_;
};

}  // namespace brimly
