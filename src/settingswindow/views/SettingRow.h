#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "settingswindow/SettingRowLayout.h"

namespace brimly {

class Switch;

// One switch of the General tab: a symbol, the title, and a small switch at the trailing edge.
// The switch shows `isOn` and never flips itself: flipping it calls `set` with the new value, and
// the row shows the change once its owner calls `setOn`.
class SettingRow : public QWidget {
  Q_OBJECT

 public:
  SettingRow(QString icon, QString title, QWidget* parent = nullptr);

  const QString& icon() const { return icon_; }
  const QString& title() const { return title_; }
  bool isOn() const;
  void setOn(bool on);
  // Called with the new value when the user flips the switch.
  std::function<void(bool on)> set;

  Switch& toggle() const { return *toggle_; }
  // The row laid out at its current width.
  const SettingRowGeometry& placement() const { return geometry_; }
  // How tall a row is: its tallest part.
  double rowHeight() const;

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void relayout();

  QString icon_;
  QString title_;
  Switch* toggle_;
  SettingRowGeometry geometry_;
};

}  // namespace brimly
