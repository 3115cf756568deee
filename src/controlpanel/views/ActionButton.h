#pragma once

#include <QAbstractButton>
#include <QString>

namespace brimly {

// A footer button of the control card: its title on nothing until the pointer is over it, then
// on a faint rounded rectangle. Only "Quit" is destructive: red, dimmer until hovered.
class ActionButton : public QAbstractButton {
  Q_OBJECT

 public:
  static constexpr double fontSize = 12;

  ActionButton(const QString& title, bool destructive, QWidget* parent = nullptr);

  bool destructive() const { return destructive_; }
  bool hovering() const { return hovering_; }
  // The title's colour now.
  QColor foreground() const;

 protected:
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool destructive_;
  bool hovering_ = false;
};

}  // namespace brimly
