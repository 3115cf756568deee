#include "about/AboutWindowController.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPalette>
#include <QScreen>
#include <QVBoxLayout>

#include "about/AboutTheme.h"
#include "about/AboutView.h"
#include "accessibility/AccessibleParts.h"
#include "usage/Theme.h"
#include "usage/views/QtColor.h"

namespace brimly {

namespace {

// The window around the About view: a fixed-size, dark, titled window with only a close button,
// which Escape and the platform's close shortcut hide like its close button does.
class AboutWindow : public QWidget, public AccessibleParts {
 public:
  AboutWindow() : QWidget(nullptr, windowFlags()) {
    setWindowTitle(QStringLiteral("About Brimly"));
    // Closing only hides it: the controller shows the same window again.
    setAttribute(Qt::WA_DeleteOnClose, false);
    setPalette(darkPalette());
    setAutoFillBackground(true);

    auto* view = new AboutView();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(view);
    setFixedSize(view->sizeHint());
  }

  QAccessible::Role accessibleRole() const override { return QAccessible::Window; }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Close)) {
      hide();
      return;
    }
    QWidget::keyPressEvent(event);
  }

 private:
  static Qt::WindowFlags windowFlags() {
    return Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
  }

  static QPalette darkPalette() {
    QPalette palette;
    const QColor surface = toQColor(AboutTheme::surface);
    const QColor text = toQColor(Theme::primaryForeground);
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
      palette.setColor(role, surface);
    }
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      palette.setColor(role, text);
    }
    return palette;
  }
};

void centreOnScreen(QWidget& window) {
  // Made first, the native window knows the frame the platform puts around it, so that the frame,
  // not just the content, is what ends up centred.
  window.createWinId();
  const QScreen* screen = window.screen() ? window.screen() : QGuiApplication::primaryScreen();
  if (!screen) return;
  QRect frame = window.frameGeometry();
  frame.moveCenter(screen->availableGeometry().center());
  window.move(frame.topLeft());
}

}  // namespace

AboutWindowController::AboutWindowController() = default;
AboutWindowController::~AboutWindowController() = default;

void AboutWindowController::show() {
  if (!window_) {
    window_ = std::make_unique<AboutWindow>();
    centreOnScreen(*window_);
    if (onWindowMade) onWindowMade(*window_);
  }
  window_->show();
  window_->raise();
  window_->activateWindow();
  if (onShown) onShown(*window_);
}

}  // namespace brimly
