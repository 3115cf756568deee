#pragma once

#include <QObject>
#include <QRegion>
#include <functional>

class QImage;
class QWidget;

namespace brimly {

// A top-level widget that Qt keeps on no screen, painted on demand into images of any pixel
// ratio. Qt still runs its widgets as if they were shown — their timers, animations and
// update() calls — and paints what they dirty; those paints are caught before they cost anything
// and only tell which parts changed. So whoever draws the widget elsewhere (into a Wayland
// surface's buffers) redraws exactly what moved, and nothing while nothing does.
class OffscreenWidget : public QObject {
  Q_OBJECT

 public:
  // Must come before `widget` is first shown; the widget must outlive this object.
  explicit OffscreenWidget(QWidget& widget);
  ~OffscreenWidget() override;

  // Paints the widget's `region` (in its coordinates) into `image`, at the image's pixel ratio,
  // over transparency: what was in `region` before is replaced.
  void paint(QImage& image, const QRegion& region);

 signals:
  // Parts of the widget changed (in its coordinates); told after Qt's own paint pass, once per
  // pass.
  void changed(const QRegion& region);
  // The widget's size changed.
  void resized();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void watch(QWidget& widget);
  void tellChanges();

  QWidget& widget_;
  QRegion pending_;
  bool painting_ = false;
};

}  // namespace brimly
