#pragma once

#include <QEvent>
#include <QObject>
#include <QPaintEvent>
#include <QRegion>
#include <vector>

namespace brimly::testing {

// Watches the widgets it is installed on and keeps the region of every paint event they receive.
class PaintRecorder : public QObject {
 public:
  std::vector<QRegion> paints;

  int count() const { return static_cast<int>(paints.size()); }
  QRegion painted() const {
    QRegion all;
    for (const QRegion& region : paints)
      all += region;
    return all;
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint)
      paints.push_back(static_cast<QPaintEvent*>(event)->region());
    return false;
  }
};

}  // namespace brimly::testing
