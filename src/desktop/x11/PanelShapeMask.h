#pragma once

#include <QMetaObject>
#include <QObject>
#include <QRegion>
#include <QSize>

class QPainterPath;

namespace brimly {

class PanelWindow;

// Cuts the panel's X11 window to the card's outline (hard-edged), following the card through
// every change of the root view: each animation frame, a jump straight to the open or closed form,
// a new size. Without a compositing manager an X11 window has no translucency: its transparent
// pixels show black, and the whole 600-wide panel would be a black slab; the cut then follows the
// card exactly. With one, the cut keeps a pixel all round the card, so that the compositor still
// blends the card's antialiased edge, and should the compositor go away the window is already no
// bigger than the card: nothing black ever shows beyond it. A card that is not drawn at all (closed
// on a screen without a notch) cuts the window to nothing.
class PanelShapeMask : public QObject {
  Q_OBJECT

 public:
  enum class Fit {
    exact,     // no compositing manager
    withEdge,  // a compositing manager blends the window
  };

  explicit PanelShapeMask(PanelWindow& window, Fit fit = Fit::exact, QObject* parent = nullptr);

  // Follows the window's current root view; call again after it was replaced.
  void follow();
  // Switches between the two cuts at once.
  void setFit(Fit fit);
  Fit fit() const { return fit_; }
  // The part of the window that shows; empty when nothing does.
  const QRegion& region() const { return region_; }

  // The cut for a card `path` (window coordinates) in a window of `windowSize`.
  static QRegion regionFor(const QPainterPath& path, const QSize& windowSize, Fit fit);

 private:
  void update();

  PanelWindow& window_;
  Fit fit_;
  QMetaObject::Connection changes_;
  QRegion region_;
};

}  // namespace brimly
