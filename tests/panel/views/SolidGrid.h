#pragma once

#include <QColor>
#include <QPainter>
#include <QWidget>

namespace brimly {

// A stand-in for the metric grid: a plain block of one colour with a fixed size hint, so that
// where the root view puts it, how it fades and where it is cut off can be read from pixels.
class SolidGrid : public QWidget {
 public:
  explicit SolidGrid(QSize size = {580, 100}, QColor colour = QColor(40, 200, 120))
      : size_(size), colour_(colour) {}

  QSize sizeHint() const override { return size_; }
  int paints = 0;

 protected:
  void paintEvent(QPaintEvent*) override {
    ++paints;
    QPainter(this).fillRect(rect(), colour_);
  }

 private:
  QSize size_;
  QColor colour_;
};

}  // namespace brimly
