#include "ui/FocusRing.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QWidget>
#include <algorithm>

#include "ui/Accent.h"
#include "usage/views/QtColor.h"

namespace brimly::FocusRing {

namespace {

bool isModifierOnly(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
      return true;
    default:
      return false;
  }
}

// Which of the keyboard and the pointer the user used last, anywhere in the application. It
// watches every event on its way in, but looks no further than its type for all but presses.
class InputModality : public QObject {
 public:
  explicit InputModality(QObject* application) : QObject(application) {
    application->installEventFilter(this);
  }

  bool keyboardUsedLast() const { return keyboard_; }

  void setKeyboardUsedLast(bool keyboard) {
    if (keyboard_ == keyboard) return;
    keyboard_ = keyboard;
    if (QWidget* focus = QApplication::focusWidget()) focus->update();
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::KeyPress:
        if (!isModifierOnly(*static_cast<QKeyEvent*>(event))) setKeyboardUsedLast(true);
        break;
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonDblClick:
      case QEvent::TouchBegin:
      case QEvent::TabletPress:
        setKeyboardUsedLast(false);
        break;
      default:
        break;
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  bool keyboard_ = false;
};

InputModality* modality() {
  static QPointer<InputModality> watcher;
  if (!watcher && QCoreApplication::instance() != nullptr) {
    watcher = new InputModality(QCoreApplication::instance());
  }
  return watcher.data();
}

}  // namespace

void watchInput() {
  modality();
}

bool isShown(const QWidget& widget) {
  const InputModality* watcher = modality();
  return watcher != nullptr && watcher->keyboardUsedLast() && widget.hasFocus();
}

void followPointer() {
  if (InputModality* watcher = modality()) watcher->setKeyboardUsedLast(false);
}

void paint(QPainter& painter, const QRectF& outer, double radius) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  // Each stroke is centred on its own middle line, so that it covers whole pixels.
  const double bandMiddle = bandWidth / 2.0;
  painter.setPen(QPen(toQColor(Accent::current()), bandWidth));
  painter.drawRoundedRect(outer.adjusted(bandMiddle, bandMiddle, -bandMiddle, -bandMiddle),
                          std::max(radius - bandMiddle, 0.0), std::max(radius - bandMiddle, 0.0));
  const double lineMiddle = bandWidth + lineWidth / 2.0;
  painter.setPen(QPen(toQColor(line), lineWidth));
  painter.drawRoundedRect(outer.adjusted(lineMiddle, lineMiddle, -lineMiddle, -lineMiddle),
                          std::max(radius - lineMiddle, 0.0), std::max(radius - lineMiddle, 0.0));
  painter.restore();
}

}  // namespace brimly::FocusRing
