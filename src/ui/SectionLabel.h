#pragma once

#include <QString>
#include <QWidget>

#include "accessibility/AccessibleParts.h"

namespace brimly {

// The caption in capitals over a group of rows ("SETTINGS", "SHOWN"): 9.5 points, semibold,
// tracked 0.8, in the tertiary style. Assistive technologies read it as a label.
class SectionLabel : public QWidget, public AccessibleParts {
  Q_OBJECT

 public:
  static constexpr double fontSize = 9.5;
  static constexpr double tracking = 0.8;

  explicit SectionLabel(QString text, QWidget* parent = nullptr);

  const QString& text() const { return text_; }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  QAccessible::Role accessibleRole() const override { return QAccessible::StaticText; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
};

}  // namespace brimly
