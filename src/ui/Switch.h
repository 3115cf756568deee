#pragma once

#include <QAbstractButton>
#include <QSize>

#include "accessibility/AccessibleParts.h"

namespace brimly {

// A switch-style toggle that never flips itself: a click (or Space/Return) only asks for the
// other state through `switchRequested`, and the switch shows whatever `setOn` last gave it. The
// owner writes the real state back once it has acted, so a switch whose action fails, or has no
// action at all, stays as it was. Assistive technologies read it as a check box; toggling it
// from one asks, as a click does.
class Switch : public QAbstractButton, public AccessibleParts {
  Q_OBJECT

 public:
  // The two control sizes of the windows: small for settings rows, mini for list rows.
  enum class Size { small, mini };

  explicit Switch(Size size, QWidget* parent = nullptr);

  bool isOn() const { return isChecked(); }
  void setOn(bool on) { setChecked(on); }

  // The track's size in points for `size`.
  static QSize trackSize(Size size);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

  QAccessible::Role accessibleRole() const override { return QAccessible::CheckBox; }
  void addAccessibleState(QAccessible::State& state) const override;

 signals:
  void switchRequested(bool on);

 protected:
  void nextCheckState() override {}
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  Size size_;
};

}  // namespace brimly
