#pragma once

#include <QMetaObject>
#include <QObject>
#include <QRegion>

namespace brimly {

class PanelWindow;

// Without a compositing manager an X11 window has no translucency: its transparent pixels show
// black, and the whole 600-wide panel would be a black slab. This cuts the window to the card's
// outline instead (hard-edged), following every animation frame of the root view.
class PanelShapeMask : public QObject {
  Q_OBJECT

 public:
  explicit PanelShapeMask(PanelWindow& window, QObject* parent = nullptr);

  // Follows the window's current root view; call again after it was replaced.
  void follow();
  const QRegion& region() const { return region_; }

 private:
  void update();

  PanelWindow& window_;
  QMetaObject::Connection frames_;
  QRegion region_;
};

}  // namespace brimly
