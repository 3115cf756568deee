#pragma once

#include <QObject>

namespace brimly {

// Whether the notch panel shows its open form. Written only by the proximity rules, read by the
// root view. Every assignment is announced, also one of the same value, so that observers can
// restart an animation on it.
class PanelState : public QObject {
  Q_OBJECT

 public:
  explicit PanelState(QObject* parent = nullptr);

  bool isOpen() const { return isOpen_; }
  void setOpen(bool open);

 signals:
  void isOpenAssigned(bool isOpen);

 private:
  bool isOpen_ = false;
};

}  // namespace brimly
