#pragma once

#include <QAccessibleInterface>
#include <QPointer>
#include <QWidget>
#include <optional>

#include "accessibility/AccessibleParts.h"

namespace brimly {

// One text (or picture) a widget paints itself, read as a child of the widget's interface. It
// holds only its place among the widget's drawn texts and reads the text afresh on every
// question, so that it is never stale and costs nothing while nobody asks.
class DrawnTextAccessible : public QAccessibleInterface {
 public:
  DrawnTextAccessible(QWidget* owner, int index);

  bool isValid() const override;
  QObject* object() const override { return nullptr; }
  QWindow* window() const override;

  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }

  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;

 private:
  std::optional<DrawnText> current() const;

  QPointer<QWidget> owner_;
  int index_;
};

}  // namespace brimly
